#include "text/Text.h"

#include "text/Names.h"

#include <gmock/gmock.h>

namespace iceline::test {

namespace {

TEST(Names, AreTheSameWhateverTheirCaseAndTheirComposition) {
    EXPECT_TRUE(sameName("Åke", "åke"));
    EXPECT_TRUE(sameName("\u00c5ke", "A\u030ake")) << "a letter with its ring, and a letter and a ring";
    EXPECT_TRUE(sameName("ΣΊΣΥΦΟΣ", "σίσυφος"));
    EXPECT_TRUE(sameName("LEE", "lee"));
    EXPECT_FALSE(sameName("lee", "lees"));
    EXPECT_FALSE(sameName("Ake", "Åke"));
    EXPECT_FALSE(sameName("\xe5ke", "\xc5ke")) << "not UTF-8";
    EXPECT_TRUE(sameName("\xe5KE", "\xe5ke"));
}

TEST(Names, AreOrderedByLettersThenByCase) {
    EXPECT_TRUE(nameBefore("Bob", "bob"));
    EXPECT_FALSE(nameBefore("bob", "Bob"));
    EXPECT_TRUE(nameBefore("bob", "Bobby"));
    EXPECT_TRUE(nameBefore("Émile", "émile"));
    EXPECT_TRUE(nameBefore("émile", "Émilie"));
}

TEST(Names, ThatNotEverySystemTakesAreTold) {
    for (const char* name :
         {"a/b",  "a\\b",   "..",      ".",      "Bob.",   "Bob ",      "a:b",         "a*",   "a?",
          "<b>",  "a|b",    "a\"b",    "a\tb",   "CON",    "con.old",   "Con .gs1",    "Lpt1", "COM¹",
          "lpt0", "CONIN$", "conout$", "CLOCK$", "ｎｕｌ", "M\xfcller", "\xed\xa0\x80"})
        EXPECT_TRUE(namingProblem(name)) << name;
    EXPECT_TRUE(namingProblem(std::string(LongestFileName + 1, 'x')));
    for (const char* name : {"Bob", "O'Neil", "J.-P.M", "Contact", "COM10", "COM", "Émile", "#1 & %"})
        EXPECT_FALSE(namingProblem(name)) << name << ": " << *namingProblem(name);
}

TEST(Text, OfAnyEditorIsRead) {
    EXPECT_EQ(textOfFile("\xEF\xBB\xBFJosé"), "José");
    EXPECT_EQ(textOfFile("Jos\xe9 \x80 \x9f"), "José € Ÿ");
    EXPECT_EQ(textOfFile("plain"), "plain");
}

TEST(Text, IsWrittenInCapitals) {
    EXPECT_EQ(inCapitals("José Peña"), "JOSÉ PEÑA");
    EXPECT_EQ(inCapitals("jos\xe9"), "jos\xe9");
}

} // namespace

} // namespace iceline::test
