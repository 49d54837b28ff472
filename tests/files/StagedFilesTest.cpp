#include "files/StagedFiles.h"

#include "files/FileError.h"
#include "support/MemoryFiles.h"
#include "support/Test.h"

#include <filesystem>

namespace iceline::test {

namespace {

using Kind = Change::Kind;

/// Two team folders: BOS with its record, MTL empty; a list of box scores beside them.
class StagedFilesTest : public testing::Test {
protected:
    StagedFilesTest() {
        base.makeFolder("BOS");
        base.makeFolder("MTL");
        base.files = {{"BOS/Records.txt", "0,0"}, {"BoxScores.htm", "game 1\n"}};
    }

    MemoryFiles base;
    StagedFiles stagedFiles{base};
    Files& files = stagedFiles;
};

} // namespace

TEST_F(StagedFilesTest, KeepsEverythingFromTheBaseFiles) {
    const auto before = base.files;
    files.write("BOS/Records.txt", "1,0");
    files.append("BoxScores.htm", "game 2\n");
    files.makeFolder("QUE");
    files.write("QUE/Records.txt", "0,1");
    files.remove("BoxScores.htm");
    files.removeFolder("MTL");
    EXPECT_EQ(base.files, before);
    EXPECT_THAT(base.folders, ElementsAre("BOS", "MTL"));
}

TEST_F(StagedFilesTest, NamesEachChangeOnceInAnOrderThatWorks) {
    files.remove("BOS/Records.txt");
    files.removeFolder("BOS");
    files.write("Overall Game Number.txt", "1");
    files.write("Overall Game Number.txt", "2");
    files.makeFolder("Coaches/Lee/Post Season");
    files.write("Coaches/Lee/Records.txt", "0");
    files.append("BoxScores.htm", "game 2\n");
    files.append("BoxScores.htm", "game 3\n");
    EXPECT_THAT(stagedFiles.changes(),
                ElementsAre(Change{Kind::MakeFolder, "Coaches", 0, ""},
                            Change{Kind::MakeFolder, "Coaches/Lee", 0, ""},
                            Change{Kind::MakeFolder, "Coaches/Lee/Post Season", 0, ""},
                            Change{Kind::Extend, "BoxScores.htm", 7, "game 2\ngame 3\n"},
                            Change{Kind::Write, "Coaches/Lee/Records.txt", 0, "0"},
                            Change{Kind::Write, "Overall Game Number.txt", 0, "2"},
                            Change{Kind::Remove, "BOS/Records.txt", 0, ""},
                            Change{Kind::RemoveFolder, "BOS", 0, ""}));
}

TEST_F(StagedFilesTest, LeavesOutWhatIsAsItWas) {
    files.write("BOS/Records.txt", "9,9");
    files.write("BOS/Records.txt", "0,0");
    files.append("BoxScores.htm", "");
    files.write("MTL/Streak.txt", "W1");
    files.remove("MTL/Streak.txt");
    files.makeFolder("MTL");
    files.makeFolder("QUE/Post Season");
    files.removeFolder("QUE/Post Season");
    files.removeFolder("QUE");
    files.removeFolder("MTL");
    files.makeFolder("MTL");
    EXPECT_THAT(stagedFiles.changes(), IsEmpty());

    files.extend("BoxScores.htm", 5, "1\n");
    EXPECT_THAT(stagedFiles.changes(), IsEmpty());
    files.write("MTL/Empty.txt", "");
    EXPECT_THAT(stagedFiles.changes(), ElementsAre(Change{Kind::Write, "MTL/Empty.txt", 0, ""}));
}

TEST_F(StagedFilesTest, FoldsAnAppendIntoAFileThatIsWrittenWhole) {
    files.write("BoxScores.htm", "head\n");
    files.append("BoxScores.htm", "game 1\n");
    files.remove("BOS/Records.txt");
    files.append("BOS/Records.txt", "new");
    EXPECT_THAT(stagedFiles.changes(),
                ElementsAre(Change{Kind::Write, "BOS/Records.txt", 0, "new"},
                            Change{Kind::Write, "BoxScores.htm", 0, "head\ngame 1\n"}));
}

TEST_F(StagedFilesTest, CutsAnAppendBackToALength) {
    files.append("BoxScores.htm", "game 2\n");
    files.extend("BoxScores.htm", 4, "s");
    EXPECT_EQ(files.read("BoxScores.htm"), "games");
    EXPECT_THAT(stagedFiles.changes(), ElementsAre(Change{Kind::Extend, "BoxScores.htm", 4, "s"}));
}

TEST_F(StagedFilesTest, ReadsEachBaseFileOnce) {
    for (int game = 2; game < 5; ++game) {
        EXPECT_EQ(files.read("BOS/Records.txt"), game == 2 ? "0,0" : "1,0");
        files.write("BOS/Records.txt", "1,0");
        files.append("BoxScores.htm", "a game\n");
    }
    EXPECT_EQ(base.reads, 1);
    EXPECT_EQ(stagedFiles.changes().size(), 2u);
    EXPECT_EQ(base.reads, 1) << "the record is known, and an append needs nothing of the old list";
    EXPECT_EQ(files.read("BoxScores.htm"), "game 1\na game\na game\na game\n");
    EXPECT_EQ(base.reads, 2);

    const std::string game = (std::filesystem::temp_directory_path() / "1.gs1").generic_string();
    base.files[game] = std::string(100, 'x');
    files.readFirst(game, 64);
    files.readFirst(game, 32);
    EXPECT_EQ(files.readFirst(game, 64).size(), 64u);
    EXPECT_EQ(base.reads, 3);
    EXPECT_EQ(files.read(game).size(), 100u);
    EXPECT_EQ(files.readFirst(game, 99).size(), 99u);
    EXPECT_EQ(base.reads, 4);
}

TEST_F(StagedFilesTest, ListsWhatTheOperationHasMade) {
    files.write("BOS/Streak.txt", "W1");
    files.write("BOS/last 10.txt", "W");
    files.remove("BOS/Records.txt");
    files.makeFolder("BOS/Post Season");
    files.removeFolder("MTL");
    files.makeFolder("Coaches");
    EXPECT_THAT(files.filesIn("BOS"), ElementsAre("last 10.txt", "Streak.txt"));
    EXPECT_THAT(files.foldersIn("BOS"), ElementsAre("Post Season"));
    EXPECT_THAT(files.foldersIn(""), ElementsAre("BOS", "Coaches"));
    EXPECT_THAT(files.filesIn("Coaches"), IsEmpty());
}

TEST_F(StagedFilesTest, RefusesWhatCouldNotBeCarriedOut) {
    EXPECT_THROW(files.write("/tmp/elsewhere.txt", ""), FileError);
    EXPECT_THROW(files.makeFolder("/tmp/elsewhere"), FileError);
    files.removeFolder("MTL");
    EXPECT_THROW(files.write("MTL", "a folder of the base"), FileError);
    EXPECT_THROW(files.write("MTL/Streak.txt", "in a folder that goes"), FileError);
    files.remove("BoxScores.htm");
    EXPECT_THROW(files.makeFolder("BoxScores.htm"), FileError);
    files.remove("BOS/Records.txt");
    files.removeFolder("BOS");
    EXPECT_THROW(files.write("BOS/Records.txt", "in a folder that goes"), FileError);
}

TEST_F(StagedFilesTest, ForgetsEverything) {
    EXPECT_EQ(files.read("BOS/Records.txt"), "0,0");
    files.write("BOS/Records.txt", "1,0");
    files.makeFolder("QUE");
    stagedFiles.discard();
    EXPECT_THAT(stagedFiles.changes(), IsEmpty());
    EXPECT_FALSE(files.isFolder("QUE"));
    base.files["BOS/Records.txt"] = "2,0";
    EXPECT_EQ(files.read("BOS/Records.txt"), "2,0");
}

} // namespace iceline::test
