#include "files/LeagueLock.h"

#include "files/DiskFiles.h"
#include "files/FileError.h"
#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <optional>
#include <string>

namespace iceline::test {

namespace {

class LeagueLockTest : public testing::Test {
protected:
    std::string refusal() const {
        return errorMessage([this] { LeagueLock(folder.path(), "iceline"); });
    }

    TemporaryFolder folder;
    DiskFiles disk{folder.path()};
    Files& files = disk;
};

} // namespace

TEST_F(LeagueLockTest, NamesTheHolderUntilHeLeaves) {
    std::optional<LeagueLock> first(std::in_place, folder.path(), "iceline-scorebook");
    EXPECT_THAT(refusal(),
                testing::MatchesRegex("League in use\\.lock: the league is in use by iceline-scorebook "
                                      "\\(process .+ on .+ since ....-..-.. ..:..\\)"));
    EXPECT_EQ(refusal(), refusal()) << "a refused program must not touch the holder's name";
    first.reset();
    EXPECT_EQ(refusal(), "no error");
}

TEST_F(LeagueLockTest, AFileLeftBehindIsHarmless) {
    files.write(LeagueLock::FileName,
                "iceline (process 1 on MOON since 2020-01-01 00:00)\n" + std::string(999, 'x'));
    EXPECT_EQ(refusal(), "no error");
}

TEST_F(LeagueLockTest, SaysWhenItCannotBeTaken) {
    EXPECT_THROW(LeagueLock(folder.path() / "no", "iceline"), FileError);
    files.makeFolder(LeagueLock::FileName);
    EXPECT_EQ(refusal(), "League in use.lock: is a folder, not a file");
}

TEST_F(LeagueLockTest, TakesNoControlCharactersIntoItsMessage) {
    const LeagueLock first(folder.path(), "iceline\x1b[2J");
    EXPECT_EQ(refusal(), "League in use.lock: the league is in use by iceline");
}

} // namespace iceline::test
