#include "files/DiskFiles.h"
#include "files/StagedFiles.h"
#include "support/MemoryFiles.h"
#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <functional>
#include <memory>
#include <ostream>

namespace iceline::test {

namespace {

std::shared_ptr<Files> onDisk() {
    struct OnDisk {
        TemporaryFolder folder;
        DiskFiles disk{folder.path()};
    };
    const auto kept = std::make_shared<OnDisk>();
    return {kept, &kept->disk};
}

std::shared_ptr<Files> inMemory() {
    return std::make_shared<MemoryFiles>();
}

template <auto Base>
std::shared_ptr<Files> stagedOn() {
    struct Staged {
        std::shared_ptr<Files> base = Base();
        StagedFiles staged{*base};
    };
    const auto kept = std::make_shared<Staged>();
    return {kept, &kept->staged};
}

/// Files of one kind. What holds for one kind holds for all.
struct Kind {
    const char* name;
    std::shared_ptr<Files> (*make)();

    friend void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }
};

class AllFiles : public testing::TestWithParam<Kind> {
protected:
    std::shared_ptr<Files> kept = GetParam().make();
    Files& files = *kept;
};

INSTANTIATE_TEST_SUITE_P(Kinds, AllFiles,
                         testing::Values(Kind{"OnDisk", onDisk}, Kind{"InMemory", inMemory},
                                         Kind{"StagedInMemory", stagedOn<inMemory>},
                                         Kind{"StagedOnDisk", stagedOn<onDisk>}),
                         [](const auto& kind) { return kind.param.name; });

} // namespace

TEST_P(AllFiles, GiveBackWhatWasWritten) {
    const std::string bytes("one\r\n\0two\xff", 10);
    files.write("a.txt", bytes);
    EXPECT_EQ(files.read("a.txt"), bytes);
    EXPECT_EQ(files.size("a.txt"), 10u);
    EXPECT_EQ(files.readFirst("a.txt", 4), "one\r");
    EXPECT_EQ(files.readFirst("a.txt", 100), bytes);

    files.write("a.txt", "new", Durability::Later);
    EXPECT_EQ(files.read("a.txt"), "new");
    files.write("a.txt", "", Durability::Unsynced);
    EXPECT_EQ(files.read("a.txt"), "");
    EXPECT_TRUE(files.isFile("a.txt"));
    files.sync();
    EXPECT_THAT(files.filesIn(""), ElementsAre("a.txt"));
}

TEST_P(AllFiles, TellAFileFromOneOfOtherContent) {
    const std::string page(50'000, 'x');
    files.write("page.htm", page, Durability::Unsynced);
    EXPECT_TRUE(files.holds("page.htm", page));
    EXPECT_FALSE(files.holds("page.htm", page + "x"));
    EXPECT_FALSE(files.holds("page.htm", page.substr(1)));
    EXPECT_FALSE(files.holds("page.htm", std::string(49'999, 'x') + "y"));
    files.write("empty.htm", "");
    EXPECT_TRUE(files.holds("empty.htm", ""));
    EXPECT_FALSE(files.holds("missing.htm", ""));
    files.makeFolder("folder.htm");
    EXPECT_FALSE(files.holds("folder.htm", ""));
}

TEST_P(AllFiles, ExtendAfterALength) {
    files.extend("list.txt", 0, "first\n");
    EXPECT_EQ(files.read("list.txt"), "first\n");
    files.append("list.txt", "second\n");
    EXPECT_EQ(files.read("list.txt"), "first\nsecond\n");
    files.extend("list.txt", 6, "2nd\n", Durability::Later);
    EXPECT_EQ(files.read("list.txt"), "first\n2nd\n");
    files.extend("list.txt", 1000, "third\n", Durability::Unsynced);
    EXPECT_EQ(files.read("list.txt"), "first\n2nd\nthird\n");
    files.extend("list.txt", 2, "");
    EXPECT_EQ(files.read("list.txt"), "fi");
    files.extend("empty.txt", 7, "");
    EXPECT_TRUE(files.isFile("empty.txt"));
}

TEST_P(AllFiles, HaveFolders) {
    EXPECT_TRUE(files.isFolder(""));
    files.makeFolder("Teams/Boston/Post Season");
    files.makeFolder("Teams/Boston");
    EXPECT_TRUE(files.isFolder("Teams"));
    EXPECT_TRUE(files.isFolder("Teams/Boston/Post Season"));
    EXPECT_FALSE(files.isFile("Teams"));
    EXPECT_THAT(files.foldersIn("Teams"), ElementsAre("Boston"));

    files.write("Teams/Boston/Records.txt", "1");
    EXPECT_EQ(errorMessage([&] { files.removeFolder("Teams/Boston"); }),
              "Teams/Boston: cannot be removed: the folder is not empty");
    files.remove("Teams/Boston/Records.txt");
    files.removeFolder("Teams/Boston/Post Season");
    files.removeFolder("Teams/Boston");
    files.removeFolder("Teams/Boston");
    EXPECT_FALSE(files.isFolder("Teams/Boston"));
    EXPECT_THAT(files.foldersIn("Teams"), IsEmpty());
}

TEST_P(AllFiles, ListNamesInOrderWithoutRegardToCase) {
    for (const char* name : {"b.gs1", "C.gs1", "a.gs1", "B2.gs1", "a b.gs1", "Z\xc3\xa9.gs1"})
        files.write(name, "");
    files.makeFolder("d/e");
    files.makeFolder("A");
    EXPECT_THAT(files.filesIn(""),
                ElementsAre("a b.gs1", "a.gs1", "b.gs1", "B2.gs1", "C.gs1", "Z\xc3\xa9.gs1"));
    EXPECT_THAT(files.foldersIn(""), ElementsAre("A", "d"));
}

TEST_P(AllFiles, SayWhatIsMissing) {
    EXPECT_FALSE(files.isFile("no.txt"));
    EXPECT_FALSE(files.isFolder("no"));
    EXPECT_EQ(files.size("no.txt"), 0u);
    files.remove("no.txt");
    files.remove("no/no.txt");
    EXPECT_EQ(errorMessage([&] { files.read("no.txt"); }), "no.txt: the file is missing");
    EXPECT_EQ(errorMessage([&] { files.readFirst("no/no.txt", 9); }), "no/no.txt: the file is missing");
    EXPECT_EQ(errorMessage([&] { files.write("no/a.txt", ""); }),
              "no/a.txt: cannot be written: its folder is missing");
    EXPECT_EQ(errorMessage([&] { files.extend("no/a.txt", 0, "x"); }),
              "no/a.txt: cannot be written: its folder is missing");
    EXPECT_EQ(errorMessage([&] { files.filesIn("no"); }), "no: the folder is missing");
    EXPECT_EQ(errorMessage([&] { files.foldersIn("no"); }), "no: the folder is missing");

    files.write("a.txt", "");
    files.remove("a.txt");
    EXPECT_FALSE(files.isFile("a.txt"));
    EXPECT_EQ(errorMessage([&] { files.read("a.txt"); }), "a.txt: the file is missing");
}

TEST_P(AllFiles, TellFilesFromFolders) {
    files.makeFolder("folder");
    files.write("file", "text");
    for (const auto& use : std::vector<std::function<void()>>{
             [&] { files.read("folder"); }, [&] { files.readFirst("folder", 1); },
             [&] { files.write("folder", ""); }, [&] { files.extend("folder", 0, ""); },
             [&] { files.remove("folder"); }})
        EXPECT_EQ(errorMessage(use), "folder: is a folder, not a file");
    for (const auto& use : std::vector<std::function<void()>>{
             [&] { files.makeFolder("file"); }, [&] { files.removeFolder("file"); },
             [&] { files.filesIn("file"); }, [&] { files.foldersIn("file"); }})
        EXPECT_EQ(errorMessage(use), "file: is a file, not a folder");
    EXPECT_EQ(files.read("file"), "text");
    EXPECT_THAT(files.filesIn(""), ElementsAre("file"));
}

TEST_P(AllFiles, StayInTheLeagueFolder) {
    files.makeFolder("Coaches");
    for (const std::string path : {"../a.txt", "Coaches/../../a.txt", "..", "Coaches/.."}) {
        const std::string refused = path + ": leads out of the league folder";
        EXPECT_EQ(errorMessage([&] { files.read(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.isFile(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.isFolder(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.size(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.filesIn(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.remove(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.removeFolder(path); }), refused);
        EXPECT_EQ(errorMessage([&] { files.write(path, "x"); }), refused);
        EXPECT_EQ(errorMessage([&] { files.extend(path, 0, "x"); }), refused);
        EXPECT_EQ(errorMessage([&] { files.makeFolder(path); }), refused);
    }
    EXPECT_NE(errorMessage([&] { files.write(std::string("a\0b", 3), "x"); }), "no error");
    files.write("Coaches/..a..txt", "x");
    EXPECT_EQ(files.read("Coaches/..a..txt"), "x");
}

} // namespace iceline::test
