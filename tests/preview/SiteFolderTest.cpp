#include "preview/SiteFolder.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace iceline::test {

namespace {

namespace fs = std::filesystem;

class SiteFolderTest : public testing::Test {
protected:
    SiteFolderTest() {
        write("secret.htm", "secret");
        write("site/index.htm", "home");
        write("site/styles.CSS", "p {}");
        write("site/PStats/index.php", "players");
        write("site/PStats/BOS_0.php", "<tr>");
        write("site/Profiles/BOS/J.-P. O'Neil.htm", "profile");
        write("site/CStats/\xC3\x89mile.htm", "coach");
    }

    void write(const std::string& name, const std::string& text) const {
        const fs::path file = folder.path() / fs::path(std::u8string(name.begin(), name.end()));
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }

    std::string body(const std::string& target) const { return site.answer(target).body; }
    unsigned status(const std::string& target) const { return site.answer(target).status; }

    TemporaryFolder folder;
    SiteFolder site{folder.path() / "site"};
};

} // namespace

TEST_F(SiteFolderTest, FindsPagesByTheirAddress) {
    EXPECT_EQ(body("/"), "home");
    EXPECT_EQ(body("/index.htm#top"), "home");
    EXPECT_EQ(body("/PStats/?team=BOS&order=../x"), "players");
    EXPECT_EQ(body("/Profiles/BOS/J.-P.%20O'Neil.htm"), "profile");
    EXPECT_EQ(body("/CStats/%C3%89mile.htm"), "coach");
    EXPECT_EQ(status("/Absent.htm"), 404U);
    EXPECT_EQ(status("/index.htm/x"), 404U);
    EXPECT_EQ(status("/Profiles/"), 404U) << "a folder without a front page shows nothing";
}

TEST_F(SiteFolderTest, SaysWhatAPageIs) {
    EXPECT_EQ(site.answer("/").contentType, "text/html; charset=utf-8");
    EXPECT_EQ(site.answer("/PStats/BOS_0.php").contentType, "text/html; charset=utf-8");
    EXPECT_EQ(site.answer("/styles.CSS").contentType, "text/css; charset=utf-8");
    EXPECT_EQ(site.answer("/Absent.htm").contentType, "text/plain; charset=utf-8");
    write("site/data.json", "{}");
    write("site/font.WOFF2", "");
    EXPECT_EQ(site.answer("/data.json").contentType, "application/json");
    EXPECT_EQ(site.answer("/font.WOFF2").contentType, "font/woff2");
}

TEST_F(SiteFolderTest, ShowsThePageThatTheSiteHasForWhatIsAbsent) {
    write("site/404.html", "lost");
    EXPECT_EQ(status("/Absent.htm"), 404U);
    EXPECT_EQ(body("/Absent.htm"), "lost");
    EXPECT_EQ(site.answer("/../secret.htm").contentType, "text/html; charset=utf-8");
}

TEST_F(SiteFolderTest, SendsAFolderToItsSlash) {
    EXPECT_EQ(status("/PStats?team=BOS"), 301U);
    EXPECT_EQ(site.answer("/PStats?team=BOS").location, "/PStats/?team=BOS");
    EXPECT_EQ(site.answer("///PStats").location, "/PStats/") << "two slashes would name another machine";
}

TEST_F(SiteFolderTest, KnowsNoWayOut) {
    for (const char* target :
         {"/../secret.htm", "/%2e%2e/secret.htm", "/PStats/..%2f../secret.htm", "/..%5csecret.htm", "//etc",
          "//etc/passwd", "/%2fetc/passwd", "/C:/secret.htm", "/index.htm%00.css", "/%zz", "/%4"})
        EXPECT_EQ(status(target), 404U) << target;
    EXPECT_EQ(status("/" + folder.path().generic_string() + "/secret.htm"), 404U);
    EXPECT_EQ(status("/" + std::string(5000, 'a')), 404U);
    EXPECT_EQ(status("http://example.org/"), 400U);
    EXPECT_EQ(status(""), 400U);
}

TEST_F(SiteFolderTest, FollowsNoLinkOut) {
    std::error_code error;
    fs::create_symlink("../secret.htm", folder.path() / "site/link.htm", error);
    fs::create_directory_symlink("..", folder.path() / "site/up", error);
    if (error)
        GTEST_SKIP() << "no links here: " << error.message();
    EXPECT_EQ(status("/link.htm"), 404U);
    EXPECT_EQ(status("/up"), 404U);
    EXPECT_EQ(status("/up/secret.htm"), 404U);
    EXPECT_EQ(body("/up/site/index.htm"), "home");
}

TEST_F(SiteFolderTest, OfASiteThatIsNotThereHasNoPages) {
    fs::remove_all(folder.path() / "site");
    EXPECT_EQ(status("/"), 404U);
    EXPECT_EQ(body("/"), "There is no home page yet. Generate the web pages first.\n");
}

} // namespace iceline::test
