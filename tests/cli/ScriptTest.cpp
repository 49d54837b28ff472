#include "cli/Script.h"

#include "CliTest.h"
#include "support/Test.h"

namespace iceline::cli {
namespace {

using namespace test;

TEST(ScriptWords, BlanksPartWordsAndDoubleQuotesHoldThemTogether) {
    EXPECT_THAT(wordsOf("import game.gs0 --exhibition\r"),
                Optional(ElementsAre("import", "game.gs0", "--exhibition")));
    EXPECT_THAT(wordsOf("\tclear \"Boston Bruins\"  "), Optional(ElementsAre("clear", "Boston Bruins")));
    EXPECT_THAT(wordsOf("import --home-coach=\"A B\" \"\""),
                Optional(ElementsAre("import", "--home-coach=A B", "")));
    EXPECT_EQ(wordsOf("clear \"Boston"), std::nullopt);
}

TEST(ScriptWords, ANumberSignAtAWordsBeginStartsAComment) {
    EXPECT_THAT(wordsOf("publish # the site"), Optional(ElementsAre("publish")));
    EXPECT_THAT(wordsOf("# nothing"), Optional(ElementsAre()));
    EXPECT_THAT(wordsOf(""), Optional(ElementsAre()));
    EXPECT_THAT(wordsOf("import game#3 \"#4\""), Optional(ElementsAre("import", "game#3", "#4")));
}

TEST_F(CliLeagueTest, AScriptGoesOnAfterWhatIsMisusedAndEndsWithTheHighestStatus) {
    const Outcome outcome = script("open Standing\n"
                                   "coach \"list\n"
                                   "script other\n"
                                   "coach list # the last\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err,
                testing::StartsWith("iceline: standard input, line 1: there is no window 'Standing'"));
    EXPECT_THAT(outcome.err, HasSubstr("\niceline: standard input, line 2: a double quote is not closed\n"));
    EXPECT_THAT(outcome.err, HasSubstr("\niceline: standard input, line 3: there is no command 'script'"));
}

TEST_F(CliLeagueTest, AScriptIsReadFromAFile) {
    std::filesystem::create_directories(league() / "Coaches/Gus");
    write("evening.txt", "coach list\r\n\r\nhelp coach\r\n");
    const Outcome outcome = iceline({"script", (league() / "evening.txt").string()});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("\nGus\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Usage: iceline coach"));

    const Outcome missing = iceline({"script", "no such script"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("no such script"));
}

} // namespace
} // namespace iceline::cli
