#include "CliTest.h"

namespace iceline::cli {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

/// The commands of the options window, and what they leave on the disk.
class OptionsCommandsTest : public CliLeagueTest {
protected:
    /// A refused command: its message on standard output, status 1, and nothing on standard error.
    void expectRefusal(const std::vector<std::string>& words, const std::string& message) const {
        const Outcome outcome = iceline(words);
        EXPECT_EQ(outcome.status, 1) << outcome.err;
        EXPECT_EQ(outcome.out, message + "\n");
        EXPECT_EQ(outcome.err, "");
    }
};

TEST_F(OptionsCommandsTest, CoachesAreAddedRenamedListedAndDeleted) {
    EXPECT_EQ(iceline({"coach", "add", "Red Kelvin"}).status, 0);
    EXPECT_EQ(iceline({"coach", "add", "Al"}).status, 0);
    EXPECT_EQ(iceline({"coach", "list"}).out, "Al\nRed_Kelvin\n");
    EXPECT_EQ(read("Coaches/Al/Streak.txt"), "\"\",0\r\n");

    EXPECT_EQ(iceline({"coach", "rename", "red kelvin", "Rusty"}).status, 0);
    EXPECT_EQ(iceline({"coach", "list"}).out, "Al\nRusty\n");

    const Outcome deleted = iceline({"coach", "delete", "Al"});
    EXPECT_EQ(deleted.status, 0);
    EXPECT_EQ(deleted.out, "Are you sure you want to delete coach Al?\n");
    EXPECT_EQ(iceline({"coach", "list"}).out, "Rusty\n");
}

TEST_F(OptionsCommandsTest, NamesThatCannotBeTakenAreRefused) {
    ASSERT_EQ(iceline({"coach", "add", "Al"}).status, 0);
    ASSERT_EQ(iceline({"coach", "add", "Bo"}).status, 0);
    expectRefusal({"coach", "rename", "Al", "Bo"}, "Bo already exists");
    expectRefusal({"coach", "add", "a name of 21 letters!"},
                  "A coach's name can have at most 20 characters.");
}

TEST_F(OptionsCommandsTest, ACoachThatDoesNotExistIsMisuse) {
    for (const char* command : {"rename", "delete", "clear"}) {
        std::vector<std::string> words{"coach", command, "Nobody"};
        if (command == std::string("rename"))
            words.emplace_back("Al");
        const Outcome outcome = iceline(words);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.err, "iceline: there is no coach 'Nobody'; 'iceline coach list' lists them\n");
    }
}

TEST_F(OptionsCommandsTest, ACoachIsClearedAlone) {
    ASSERT_EQ(iceline({"coach", "add", "Al"}).status, 0);
    write("Coaches/Al/Streak.txt", "\"W\",3\r\n");
    write("Boston Bruins/Streak.txt", "\"L\",2\r\n");
    const Outcome outcome = iceline({"coach", "clear", "Al"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "Are you sure you want to clear all of Coach Al's Stats?\n"
                           "Al's Stats have been cleared.\n");
    EXPECT_EQ(read("Coaches/Al/Streak.txt"), "\"\",0\r\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"L\",2\r\n");
}

TEST_F(OptionsCommandsTest, AScriptFindsTheCoachesThatItHasAdded) {
    const Outcome outcome = script("coach add \"Al B\"\n"
                                   "coach add Al_B # there already\n"
                                   "coach rename Al_B Cy\n"
                                   "coach rename Cy Cy\n"
                                   "coach rename Cy Di\n"
                                   "coach list\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Al_B already exists\nCy already exists\nDi\n");
}

TEST_F(OptionsCommandsTest, TheSeasonLengthIsShownAndSet) {
    EXPECT_EQ(iceline({"season-length"}).out, "82\n");
    const Outcome set = iceline({"season-length", "60"});
    EXPECT_EQ(set.status, 0);
    EXPECT_EQ(set.out, "The Season Length has been updated.\n");
    EXPECT_EQ(read("Games Until Playoffs.txt"), "60\r\n");

    const Outcome refused = iceline({"season-length", "many"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.out, HasSubstr("\"many\""));
    EXPECT_EQ(iceline({"season-length", "-1"}).status, 0);
    EXPECT_EQ(iceline({"season-length"}).out, "-1\n");
}

TEST_F(OptionsCommandsTest, GoToPlayoffsEndsTheSeasonForGood) {
    const Outcome outcome = iceline({"go-to-playoffs"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "Are you sure you want to end the Regular Season and move to the Playoffs?\n"
                           "Regular Season COMPLETE, Playoff Mode now active for the Postseason.\n"
                           "The Regular Season is now over, proceed with the Playoffs.\n");
    EXPECT_THAT(iceline({"open", "StatExtractor"}).out,
                StartsWith("Stat Extractor     ***** PLAYOFF MODE *****\n"));
}

TEST_F(OptionsCommandsTest, ATeamOrTheLeagueIsCleared) {
    const std::string question = "Are you sure you want to reset everything back to 0?\n";
    write("Boston Bruins/Streak.txt", "\"L\",2\r\n");
    write("St. Louis Blues/Streak.txt", "\"W\",2\r\n");
    const Outcome team = iceline({"clear", "St. Louis Blues"});
    EXPECT_EQ(team.status, 0) << team.err;
    EXPECT_EQ(team.out, question + "St. Louis Blues stats cleared\n");
    EXPECT_EQ(read("St. Louis Blues/Streak.txt"), "\"\",0\r\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"L\",2\r\n");

    const Outcome all = iceline({"clear", "ALL"});
    EXPECT_EQ(all.out, question + "All stats have been cleared.\n");
    EXPECT_EQ(read("Boston Bruins/Streak.txt"), "\"\",0\r\n");

    const Outcome unknown = iceline({"clear", "BOS"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "iceline: there is no team 'BOS'; give its full name, or ALL for the league\n");
}

} // namespace
} // namespace iceline::cli
