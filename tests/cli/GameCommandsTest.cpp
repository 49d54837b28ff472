#include "CliTest.h"
#include "files/DiskFiles.h"
#include "samples/SampleGames.h"
#include "support/Test.h"

#include <nlohmann/json.hpp>

namespace iceline::cli {
namespace {

using namespace test;

namespace fs = std::filesystem;

const std::string Imported = "The game has been imported and stats have been saved.\n";
const std::string NoCoach = "Please select at least one coach first to import exhibition game to\n";

/// A league with save states beside it: game-0001.gs0 and on.
class GameCommandsTest : public CliLeagueTest {
protected:
    GameCommandsTest() {
        DiskFiles files(games_.path());
        writeSampleGames(files, games_.path().generic_string(), 3, 1);
    }

    std::string game(int number) const {
        return (games_.path() / ("game-000" + std::to_string(number) + ".gs0")).generic_string();
    }

    /// A save state that names a team outside the league.
    std::string strangeGame() const {
        const fs::path file = games_.path() / "strange.gs0";
        std::ofstream(file, std::ios::binary) << std::string(65536, '\x63');
        return file.generic_string();
    }

    std::string gameNumber() const { return read("Overall Game Number.txt"); }
    const fs::path& games() const { return games_.path(); }
    std::string folder() const { return games_.path().generic_string(); }

    void addCoach(const std::string& name) const {
        fs::create_directories(league() / "Coaches" / name);
        ASSERT_EQ(iceline({"init"}).status, 0);
    }

private:
    TemporaryFolder games_;
};

TEST_F(GameCommandsTest, AFolderMayHaveLettersBeyondAscii) {
    const std::string name = "Spieltag \xC3\xBC";
    EXPECT_EQ(call({"sample-games", folder() + "/" + name, "--games", "1"}).status, 0);
    EXPECT_TRUE(fs::exists(games() / fs::path(u8"Spieltag \u00FC") / "game-0001.gs0"));
    EXPECT_EQ(iceline({"read", folder() + "/" + name + "/game-0001.gs0"}).status, 0);
}

TEST_F(GameCommandsTest, ReadPrintsTheReportAndChangesNothing) {
    const Outcome outcome = iceline({"read", game(1)});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, StartsWith("Quebec Nordiques 5, Ottawa Senators 4  F\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\nAttacking Zone"));
    EXPECT_THAT(outcome.out, HasSubstr("\n1st Star:  "));
    EXPECT_THAT(outcome.out, HasSubstr("\nScoring Summary\nPer Time Team             Goal/Assist"));
    EXPECT_THAT(outcome.out, HasSubstr("\nPenalty Summary\nPer Time Team    Player"));
    EXPECT_THAT(outcome.out, testing::Not(HasSubstr("\r")));
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 100u) << line;

    const auto parts = nlohmann::json::parse(iceline({"read", game(1), "--json"}).out);
    EXPECT_EQ(parts.at(0).at("rows").at(0).at("Home Goals"), 5);
    EXPECT_EQ(parts.at(2).at("title"), "Quebec Nordiques");
    EXPECT_TRUE(parts.at(2).at("rows").at(0).contains("SOG"));
    EXPECT_EQ(gameNumber(), "0\r\n");
    EXPECT_TRUE(fs::is_empty(league() / "IcelineWebPages/BoxScores"));
}

TEST_F(GameCommandsTest, ImportTakesASeasonGameIntoTheLeague) {
    const Outcome outcome = iceline({"import", game(1)});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, Imported);
    EXPECT_EQ(gameNumber(), "1\r\n");
    EXPECT_THAT(read("Quebec Nordiques/Records.txt"), StartsWith("1,0,0,2,1,1,5,4,"));
    EXPECT_THAT(read("Ottawa Senators/Records.txt"), StartsWith("0,1,0,0,0,1,4,5,"));
    EXPECT_TRUE(fs::exists(league() / "IcelineWebPages/BoxScores/game-0001.htm"));
}

TEST_F(GameCommandsTest, AnExhibitionWithoutACoachIsRefused) {
    const Outcome single = iceline({"import", game(1), "--exhibition"});
    EXPECT_EQ(single.status, 1);
    EXPECT_EQ(single.out, NoCoach);
    const Outcome run = iceline({"import-folder", folder(), "--exhibition"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, NoCoach);
    EXPECT_EQ(gameNumber(), "1\r\n");
}

TEST_F(GameCommandsTest, CoachesThatCannotBeChosenAreMisuse) {
    addCoach("Gus");
    const Outcome unknown = iceline({"import", game(1), "--away-coach", "Hal"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "iceline: there is no coach 'Hal'; 'iceline coach list' lists them\n");
    const Outcome twice = iceline({"import", game(1), "--home-coach", "Gus", "--away-coach", "Gus"});
    EXPECT_EQ(twice.status, 2);
    EXPECT_EQ(twice.err, "iceline: nobody can coach both teams\n");
    EXPECT_EQ(gameNumber(), "0\r\n");
}

TEST_F(GameCommandsTest, AFileThatIsRefusedAtTheReadIsNotImported) {
    for (const char* command : {"read", "import"}) {
        const Outcome outcome = iceline({command, strangeGame()});
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 1) << outcome.out;
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_EQ(gameNumber(), "0\r\n");
    EXPECT_TRUE(fs::is_empty(league() / "IcelineWebPages/BoxScores"));
}

TEST_F(GameCommandsTest, FilesThatCannotBeReadAreFileErrors) {
    EXPECT_EQ(iceline({"import", folder() + "/none.gs0"}).err,
              "iceline: " + folder() + "/none.gs0: the file is missing\n");
    EXPECT_EQ(iceline({"read", folder()}).err, "iceline: " + folder() + ": is a folder, not a file\n");
    const Outcome run = iceline({"import-folder", folder() + "/none"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "iceline: " + folder() + "/none: there is no such folder\n");
}

TEST_F(GameCommandsTest, AFolderIsImportedInTheOrderOfItsNames) {
    const Outcome outcome = iceline({"import-folder", folder()});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "Are you sure you want import all files in " + folder() + "?\n3 Files imported\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(read("Last 10 Box.txt"), EndsWith("\"game-0001.htm\"\r\n"));
}

TEST_F(GameCommandsTest, AFolderRunShowsItsProgressOnATerminalAlone) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(run({"--league", league().string(), "import-folder", folder()}, {in, out, err, false, true}),
              0);
    EXPECT_THAT(err.str(), HasSubstr("\rImporting games [##########....................] 1/3 game-0002.gs0"));
    EXPECT_THAT(err.str(), EndsWith(std::string(79, ' ') + "\r"));
    EXPECT_THAT(out.str(), EndsWith("\n3 Files imported\n"));
}

TEST_F(GameCommandsTest, ARefusalInAFolderIsPassedOverOrEndsTheRun) {
    fs::rename(strangeGame(), folder() + "/game-0001b.gs0");
    const Outcome goesOn = iceline({"import-folder", folder()});
    EXPECT_EQ(goesOn.status, 3);
    EXPECT_THAT(goesOn.out, EndsWith("\n3 imported, 1 refused\ngame-0001b.gs0: refused\n"));
    const Outcome again = iceline({"import-folder", folder()});
    EXPECT_EQ(again.status, 3);
    EXPECT_THAT(again.out, HasSubstr("\n0 imported, 3 already in the books, 1 refused\n"));
    const Outcome stops = iceline({"import-folder", folder(), "--stop-on-refusal", "--force"});
    EXPECT_EQ(stops.status, 1);
    EXPECT_THAT(stops.out, EndsWith("\n1 Files imported\n"));
}

TEST_F(GameCommandsTest, AScriptGoesOnAfterARefusedGameAndEndsAtAFileError) {
    const Outcome goesOn = script("import " + strangeGame() + "\nimport " + game(1) + "\n");
    EXPECT_EQ(goesOn.status, 1);
    EXPECT_THAT(goesOn.out, EndsWith("\n" + Imported));

    const Outcome ends = script("open None\nimport none.gs0\nimport " + game(2) + "\n");
    EXPECT_EQ(ends.status, 2);
    EXPECT_EQ(ends.out, "");
    EXPECT_THAT(ends.err, HasSubstr("\niceline: standard input, line 2: "));
    EXPECT_EQ(gameNumber(), "1\r\n");
}

TEST_F(GameCommandsTest, TheGameWindowStaysOpenInAScript) {
    const Outcome outcome = script("open StatExtractor\nread " + game(1) +
                                   "\nopen StatExtractor\n"
                                   "close StatExtractor\nopen StatExtractor\n");
    const std::string empty = "Stat Extractor\n[No File Loaded]\n";
    EXPECT_THAT(outcome.out, StartsWith(empty));
    EXPECT_THAT(outcome.out, HasSubstr("\nStat Extractor\n" + game(1) + "\n\nQuebec Nordiques 5"));
    EXPECT_THAT(outcome.out, EndsWith(empty));
}

TEST_F(GameCommandsTest, CoachesWhoComeWhileTheGameWindowIsLoadedCanBeChosenForOneGame) {
    const Outcome outcome = script("coach add Bo_Bell\nimport " + game(1) +
                                   " --home-coach \"bo bell\"\n"
                                   "coach add Al\nimport " +
                                   game(2) +
                                   " --exhibition --home-coach Bo_Bell --away-coach Al\n"
                                   "import " +
                                   game(3) + "\n");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(read("Coaches/Bo_Bell/Last 10 Games.txt"), "\"W\"\r\n\"L\"\r\n");
    EXPECT_EQ(read("Coaches/Al/Last 10 Games.txt"), "\"W\"\r\n");
}

TEST_F(GameCommandsTest, ACoachIsShownAndHisPageWritten) {
    const Outcome outcome = script("coach add Bo\nimport " + game(1) + " --home-coach Bo\ncoach show bo\n");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, StartsWith(Imported + "Bo\n\nRecord W - L - T"));
    EXPECT_THAT(read("IcelineWebPages/CStats/Bo.htm"), HasSubstr("Bo"));
    EXPECT_EQ(iceline({"coach", "show", "Al"}).status, 2);
}

} // namespace
} // namespace iceline::cli
