#include "files/DiskFiles.h"

#include "files/FileError.h"
#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <filesystem>
#include <fstream>

namespace iceline::test {

namespace {

namespace fs = std::filesystem;

class DiskFilesTest : public testing::Test {
protected:
    /// Names of all that is in the folder, temporary files too.
    std::vector<std::string> namesOnDisk() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    TemporaryFolder folder;
    DiskFiles disk{folder.path()};
    Files& files = disk;
};

} // namespace

TEST_F(DiskFilesTest, TakesAbsolutePathsAsGiven) {
    const TemporaryFolder games;
    const std::string game = (games.path() / "1.gs1").generic_string();
    std::ofstream(games.path() / "1.gs1") << "a game";
    EXPECT_EQ(files.readFirst(game, 3), "a g");
    EXPECT_THAT(files.filesIn(games.path().generic_string()), ElementsAre("1.gs1"));
    files.write(games.path().generic_string() + "/../" + games.path().filename().string() + "/2.gs1", "x");
    EXPECT_TRUE(fs::exists(games.path() / "2.gs1"));
    EXPECT_THAT(namesOnDisk(), IsEmpty());
}

TEST_F(DiskFilesTest, HasNamesThatAreNotAscii) {
    const std::string name = "Caf\xc3\xa9 \xe2\x98\x83.txt";
    files.makeFolder("\xc3\xa9t\xc3\xa9");
    files.write(name, "x");
    EXPECT_EQ(files.read(name), "x");
    EXPECT_THAT(files.filesIn(""), ElementsAre(name));
    EXPECT_THAT(files.foldersIn(""), ElementsAre("\xc3\xa9t\xc3\xa9"));
}

TEST_F(DiskFilesTest, LeftoverTemporaryFilesDoNoHarm) {
    files.makeFolder("Lee/Records.txt.new~");
    std::ofstream(folder.path() / "Lee/Streak.txt.new~") << "a longer text that a crash has left";
    EXPECT_THAT(files.filesIn("Lee"), IsEmpty());
    files.write("Lee/Streak.txt", "W1");
    files.write("Lee/Records.txt", "0");
    EXPECT_EQ(files.read("Lee/Streak.txt"), "W1");
    EXPECT_THAT(files.filesIn("Lee"), ElementsAre("Records.txt", "Streak.txt"));

    std::ofstream(folder.path() / "Lee/Streak.txt.new~") << "again";
    files.remove("Lee/Streak.txt");
    files.remove("Lee/Records.txt");
    files.removeFolder("Lee");
    EXPECT_THAT(namesOnDisk(), IsEmpty());
}

TEST_F(DiskFilesTest, AFailedWriteLeavesNothing) {
    files.makeFolder("Records.txt/in the way");
    for (const auto durability : {Durability::Now, Durability::Later, Durability::Unsynced})
        EXPECT_THROW(files.write("Records.txt", "x", durability), FileError);
    EXPECT_THROW(files.write(std::string(300, 'n'), "x"), FileError);
    EXPECT_THAT(namesOnDisk(), ElementsAre("Records.txt"));
}

TEST_F(DiskFilesTest, SyncsWhatHasGoneSince) {
    for (int file = 0; file < 40; ++file) {
        const std::string name = "Coaches/" + std::to_string(file);
        files.makeFolder(name);
        files.write(name + "/Records.txt", "0", Durability::Later);
        if (file == 3)
            files.sync();
        if (file % 2 == 0) {
            files.remove(name + "/Records.txt");
            files.removeFolder(name);
        }
        if (file == 5)
            files.sync();
    }
    files.sync();
    EXPECT_EQ(files.foldersIn("Coaches").size(), 20u);
}

} // namespace iceline::test
