#include "CliTest.h"
#include "app/Catalogue.h"
#include "cli/TextTable.h"
#include "files/LeagueLock.h"
#include "shell/Windows.h"
#include "support/Test.h"

#include <csignal>
#include <map>

namespace iceline::cli {
namespace {

using namespace test;

namespace fs = std::filesystem;

const std::string Question =
    "Some or all of the required data files are not present,\n"
    "would you like the missing ones to be created?\n"
    "\n"
    "(There are several files, so make sure the .EXE is in a separate folder first!)\n";

using Contents = std::map<std::string, std::string>;

/// Every file in a folder but the lock's, by path.
Contents contentsOf(const fs::path& folder) {
    Contents contents;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().filename() == LeagueLock::FileName)
            continue;
        std::ifstream in(entry.path(), std::ios::binary);
        contents[fs::relative(entry.path(), folder).generic_string()] = {std::istreambuf_iterator<char>(in),
                                                                         {}};
    }
    return contents;
}

TEST_F(CliTest, TheQuestionIsCancelledWithoutATerminal) {
    const Outcome cancelled = call({"--league", league().string(), "init"}, "o\n");
    EXPECT_EQ(cancelled.status, 1);
    EXPECT_EQ(cancelled.out, Question);
    EXPECT_EQ(cancelled.err, "");
    EXPECT_TRUE(contentsOf(league()).empty());
}

TEST_F(CliTest, TheQuestionIsPutToWhoeverSitsAtTheTerminal) {
    const auto answer = [this](const std::string& typed) {
        std::istringstream in(typed);
        std::ostringstream out;
        return run({"--league", league().string(), "coach", "list"}, {in, out, out, true, false});
    };
    EXPECT_EQ(answer("\n"), 1);
    EXPECT_EQ(answer(""), 1);
    EXPECT_FALSE(fs::exists(league() / "Coaches"));
    EXPECT_EQ(answer("ok\n"), 0);
    EXPECT_TRUE(fs::exists(league() / "Coaches"));
}

TEST_F(CliTest, InitMakesALeagueAndASecondOneChangesNothing) {
    EXPECT_EQ(iceline({"init"}).out, Question);
    const auto made = contentsOf(league());
    EXPECT_EQ(made.at("Games Until Playoffs.txt"), "82\r\n");
    EXPECT_EQ(made.count("Winnipeg Jets/Post Season/Records.txt"), 1u);

    const Outcome second = iceline({"init"});
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.out, "");
    EXPECT_EQ(contentsOf(league()), made);
}

TEST_F(CliLeagueTest, InitCopiesWhatIsMissingOfTheTemplateAndKeepsTheRest) {
    EXPECT_EQ(iceline({"init"}).status, 0);
    write("IcelineWebPages/BannerMinis/BOS.gif", "drawn by hand");
    const std::string picture = read("IcelineWebPages/BannerMinis/MTL.gif");
    fs::remove(league() / "IcelineWebPages/BannerMinis/MTL.gif");
    fs::remove_all(league() / "IcelineWebPages/BigLogos");

    EXPECT_EQ(iceline({"init"}).status, 0);
    EXPECT_EQ(read("IcelineWebPages/BannerMinis/BOS.gif"), "drawn by hand");
    EXPECT_EQ(read("IcelineWebPages/BannerMinis/MTL.gif"), picture);
    EXPECT_TRUE(fs::exists(league() / "IcelineWebPages/BigLogos/WPG.gif"));
}

TEST_F(CliLeagueTest, SiteSettingsAreToldByThePages) {
    EXPECT_EQ(iceline({"init"}).status, 0);
    const std::string page = read("IcelineWebPages/index.html");
    EXPECT_EQ(iceline({"site-settings", "name", "Ice & \"Line\""}).status, 0);
    EXPECT_EQ(read("IcelineWebPages/index.html"), page);
    const Outcome refused = iceline({"site-settings", "address", "example.org"});
    EXPECT_NE(refused.status, 0);
    EXPECT_THAT(refused.err, HasSubstr("must begin with https://"));
    EXPECT_EQ(iceline({"site-settings", "address", "https://example.org/ice/"}).status, 0);
    EXPECT_THAT(read("IcelineWebPages/index.html"),
                AllOf(HasSubstr("og:title\" content=\"Ice &amp; &quot;Line&quot;\""),
                      HasSubstr("og:url\" content=\"https://example.org/ice/\"")));
    EXPECT_EQ(iceline({"site-settings", "name"}).out, "Ice & \"Line\"\n");
    write("Site Settings.json", "{\"nmae\": \"x\"}");
    EXPECT_THAT(iceline({"site-settings"}).err, HasSubstr("Site Settings.json: there is no setting 'nmae'"));
}

TEST_F(CliLeagueTest, AMalformedSeasonLengthEndsTheRun) {
    write("Games Until Playoffs.txt", "");
    const Outcome emptied = iceline({"coach", "list"});
    EXPECT_EQ(emptied.status, 1);
    EXPECT_EQ(emptied.out, "");
    EXPECT_THAT(emptied.err, AllOf(StartsWith("iceline: Games Until Playoffs.txt"), EndsWith("\n")));
    EXPECT_EQ(std::ranges::count(emptied.err, '\n'), 1);
}

#ifndef _WIN32 // which has no pager of its own
TEST_F(CliLeagueTest, ATerminalHasBoldHeadsAndAPager) {
    const fs::path shown = league() / "shown";
    const auto open = [this](const std::string& pager) {
        std::istringstream in;
        std::ostringstream out;
        Console console{.in = in, .out = out, .err = out, .outHasColours = true, .pager = pager};
        EXPECT_EQ(run({"--yes", "--league", league().string(), "open", "Standings"}, console), 0);
        return out.str();
    };
    EXPECT_EQ(open("cat >'" + shown.string() + "'"), "");
    EXPECT_THAT(read("shown"),
                HasSubstr("\n\x1b[1m  Adams Division         W  L  T  Pts.  GF  GA  GP\x1b[0m\n"));
    EXPECT_EQ(open("no-such-pager 2>/dev/null"), read("shown"));
}
#endif

TEST_F(CliLeagueTest, ALeagueInUseIsRefused) {
    const LeagueLock lock(league(), "another program");
    const Outcome refused = iceline({"coach", "list"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, AllOf(StartsWith("iceline: "), HasSubstr("another program")));
    EXPECT_THAT(call({"--version"}).out, AllOf(StartsWith("iceline 3.0.0"), HasSubstr("\nwith Boost 1.")));
}

TEST_F(CliLeagueTest, ArgumentsThatAreInvalidAreToldInOneLine) {
    struct Case {
        std::vector<std::string> words;
        std::string error;
    };
    std::vector<Case> cases{
        {{}, "a command is needed; 'iceline help' lists them"},
        {{"inti"}, "there is no command 'inti'; 'iceline help' lists them"},
        {{"--league", "no/such/folder", "init"}, "no/such/folder: there is no such folder"},
        {{"help", "coach", "ad"}, "there is no command 'ad'; 'iceline help' lists them"},
        {{"script"}, "FILE is required"},
        {{"init", "more"}, "The following argument was not expected: more"},
        {{"preview", "--port", "65536"}, "--port: must be a whole number from 0 to 65535, not \"65536\""},
        {{"sample-games", "x", "--games", "0"},
         "--games: must be a whole number from 1 to 2147483647, not \"0\""},
    };
    for (const char* command : {"read", "import", "import-folder", "script", "sample-games"})
        cases.push_back(
            {{"--league", league().string(), command, ""}, "the path of a file or folder is empty"});
    for (const Case& each : cases) {
        const Outcome outcome = call(each.words);
        EXPECT_EQ(outcome.status, 2) << outcome.err;
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "iceline: " + each.error + "\n");
    }
    EXPECT_FALSE(fs::exists("x"));
}

TEST_F(CliTest, HelpListsTheCommandsAndDescribesOne) {
    const Outcome help = call({"help"});
    EXPECT_EQ(help.status, 0);
    for (const char* command :
         {"init", "read", "import", "import-folder", "publish", "open", "close", "coach", "season-length",
          "go-to-playoffs", "clear", "sample-games", "script", "help"})
        EXPECT_THAT(help.out, HasSubstr(std::string("\n  ") + command + " ")) << command;
    EXPECT_THAT(call({"help", "sample-games"}).out, HasSubstr("Usage: iceline sample-games [OPTIONS] DIR"));
    EXPECT_EQ(call({"coach", "--help"}).status, 0);
}

TEST_F(CliTest, SampleGamesNeedNoLeague) {
    const fs::path games = league() / "games";
    EXPECT_EQ(call({"sample-games", games.string(), "--games", "2", "--seed", "7"}).status, 0);
    const auto first = contentsOf(games);
    EXPECT_EQ(first.size(), 2u);
    EXPECT_EQ(call({"sample-games", games.string(), "--games", "2", "--seed", "8"}).status, 0);
    EXPECT_NE(contentsOf(games), first);
    EXPECT_EQ(contentsOf(league()).size(), 2u);
}

TEST_F(CliLeagueTest, EveryWindowOfTheCatalogueIsPrintedWithin100Columns) {
    for (const CatalogueRow& row : windowCatalogue()) {
        const Outcome outcome = iceline({"open", std::string(row.name)});
        EXPECT_EQ(outcome.status, 0) << row.name << ": " << outcome.err;
        EXPECT_NE(outcome.out, "") << row.name;
        std::istringstream lines(outcome.out);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(displayWidth(line), 100u) << row.name << ": " << line;
    }
}

TEST_F(CliLeagueTest, AWindowThatDoesNotExistIsNamed) {
    const Outcome unknown = iceline({"open", "Standing"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(unknown.err, StartsWith("iceline: there is no window 'Standing'; there are StatExtractor, "));
}

/// Standard error as a terminal on which somebody presses Ctrl+C when a run shows that its second item is in
/// hand.
class InterruptingTerminal : public std::streambuf {
    int_type overflow(int_type character) override {
        if (character == '\r' && ++items_ == 2)
            std::raise(SIGINT);
        return traits_type::not_eof(character);
    }

    int items_ = 0;
};

TEST_F(CliLeagueTest, ASignalEndsARunAfterTheItemInHand) {
    const std::string games = (league() / "games").string();
    call({"sample-games", games, "--games", "3"});
    const auto interrupted = [&](std::vector<std::string> words) {
        words.insert(words.begin(), {"--league", league().string()});
        InterruptingTerminal terminal;
        std::istringstream in("open Standings\n");
        std::ostringstream out;
        std::ostream err(&terminal);
        const int status = run(words, {in, out, err, false, true});
        return std::pair(status, out.str());
    };
    EXPECT_THAT(
        interrupted({"import-folder", games}),
        testing::Pair(128 + SIGINT, HasSubstr("\n1 Files imported\nThe run was stopped. The last file "
                                              "imported was game-0001.gs0.\n")));
    EXPECT_THAT(interrupted({"publish"}),
                testing::Pair(128 + SIGINT, "The run was stopped before all Webpages were generated.\n"));
    write("evening.txt", "publish\nopen Standings\n");
    EXPECT_THAT(interrupted({"script", (league() / "evening.txt").string()}),
                testing::Pair(128 + SIGINT, "The run was stopped before all Webpages were generated.\n"));
}

TEST_F(CliLeagueTest, OutputThatCannotBeWrittenIsAFailure) {
    std::istringstream in;
    std::ostream out(nullptr);
    std::ostringstream err;
    EXPECT_EQ(run({"--league", league().string(), "season-length"}, {in, out, err}), 1);
    EXPECT_EQ(err.str(), "iceline: standard output: cannot be written to its end\n");
}

} // namespace
} // namespace iceline::cli
