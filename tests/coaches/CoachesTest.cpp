#include "coaches/Coaches.h"

#include "support/TestLeague.h"

#include <gmock/gmock.h>

namespace iceline::test {

namespace {

TEST(CoachNames, ThatCannotBeFoldersOnEverySystemAreRefused) {
    for (const char* name : {"a/b", "a\\b", "..", ".", "Bob.", "a:b", "a*", "a?", "<b>", "a|b", "a\"b",
                             "a\tb", "CON", "con.old", "Lpt1", "abcdefghijklmnopqrstu"})
        EXPECT_TRUE(coachNameProblem(name)) << name;
    for (const char* name :
         {"Bob", "O'Neil", "J.-P.M", "Contact", "COM10", "abcdefghijklmnopqrst", "\xc3\x89mile"})
        EXPECT_FALSE(coachNameProblem(name)) << name << ": " << *coachNameProblem(name);
}

TEST(Coaches, AreFoundWhateverTheCase) {
    TestLeague league;
    league.addCoach("Bob");
    league.addCoach("ann");
    EXPECT_EQ(findCoach(league.files, "BOB"), "Bob");
    EXPECT_EQ(findCoach(league.files, "Bo"), std::nullopt);
    EXPECT_THAT(coachNames(league.files), testing::ElementsAre("ann", "Bob"));
}

} // namespace

} // namespace iceline::test
