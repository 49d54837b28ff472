#include "CliTest.h"
#include "support/Test.h"

namespace iceline::cli {
namespace {

using namespace test;

/// The commands of the options window, and what they leave on the disk.
class OptionsCommandsTest : public CliLeagueTest {
protected:
    /// A command done or refused: nothing is on standard error.
    void expect(const std::vector<std::string>& words, int status, const testing::Matcher<std::string>& out) {
        const Outcome outcome = iceline(words);
        EXPECT_EQ(outcome.status, status) << outcome.err;
        EXPECT_THAT(outcome.out, out);
        EXPECT_EQ(outcome.err, "");
    }

    void expectMisuse(const std::vector<std::string>& words, const std::string& error) {
        const Outcome outcome = iceline(words);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.err, "iceline: " + error + "\n");
    }
};

TEST_F(OptionsCommandsTest, CoachesAreAddedRenamedListedClearedAndDeleted) {
    expect({"coach", "add", "Red Kelvin"}, 0, "");
    expect({"coach", "add", "Al"}, 0, "");
    expect({"coach", "list"}, 0, "Al\nRed_Kelvin\n");
    expect({"coach", "rename", "red kelvin", "Rusty"}, 0, "");
    expect({"coach", "rename", "Al", "Rusty"}, 1, "Rusty already exists\n");
    expect({"coach", "add", "a name of 21 letters!"}, 1, "A coach's name can have at most 20 characters.\n");
    write("Coaches/Al/Streak.txt", "\"W\",3\r\n");
    write("Boston Bruins/Streak.txt", "\"L\",2\r\n");
    expect({"coach", "clear", "Al"}, 0,
           "Are you sure you want to clear all of Coach Al's Stats?\nAl's Stats have been cleared.\n");
    EXPECT_EQ(read("Coaches/Al/Streak.txt"), "\"\",0\r\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"L\",2\r\n");
    expect({"coach", "delete", "Al"}, 0, "Are you sure you want to delete coach Al?\n");
    expect({"coach", "list"}, 0, "Rusty\n");
    const std::string unknown = "there is no coach 'Nobody'; 'iceline coach list' lists them";
    expectMisuse({"coach", "rename", "Nobody", "Al"}, unknown);
    expectMisuse({"coach", "delete", "Nobody"}, unknown);
    expectMisuse({"coach", "clear", "Nobody"}, unknown);
}

TEST_F(OptionsCommandsTest, TheLeagueIsClearedAndTheSeasonSetAndEnded) {
    const std::string question = "Are you sure you want to reset everything back to 0?\n";
    write("Boston Bruins/Streak.txt", "\"L\",2\r\n");
    write("St. Louis Blues/Streak.txt", "\"W\",2\r\n");
    expect({"clear", "St. Louis Blues"}, 0, question + "St. Louis Blues stats cleared\n");
    EXPECT_EQ(read("St. Louis Blues/Streak.txt"), "\"\",0\r\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"L\",2\r\n");
    expect({"clear", "ALL"}, 0, question + "All stats have been cleared.\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"\",0\r\n");
    expectMisuse({"clear", "BOS"}, "there is no team 'BOS'; give its full name, or ALL for the league");

    expect({"season-length"}, 0, "82\n");
    expect({"season-length", "-1"}, 0, "The Season Length has been updated.\n");
    expect({"season-length", "many"}, 1, HasSubstr("\"many\""));
    expect({"season-length"}, 0, "-1\n");
    expect({"season-length", "60"}, 0, "The Season Length has been updated.\n");
    EXPECT_EQ(read("Games Until Playoffs.txt"), "60\r\n");
    expect({"go-to-playoffs"}, 0,
           "Are you sure you want to end the Regular Season and move to the Playoffs?\n"
           "Regular Season COMPLETE, Playoff Mode now active for the Postseason.\n"
           "The Regular Season is now over, proceed with the Playoffs.\n");
    expect({"open", "StatExtractor"}, 0, StartsWith("Stat Extractor     ***** PLAYOFF MODE *****\n"));
}

} // namespace
} // namespace iceline::cli
