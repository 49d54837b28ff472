#include "coaches/Coaches.h"

#include "support/TestLeague.h"

#include <gmock/gmock.h>

namespace iceline::test {

namespace {

TEST(CoachNames, ThatCannotBeFoldersOnEverySystemOrAreTooLongAreRefused) {
    for (const char* name : {"Bob.", "a:b", "COM¹", "M\xfcller", "abcdefghijklmnopqrstu"})
        EXPECT_TRUE(coachNameProblem(name)) << name;
    for (const char* name : {"Bob", "abcdefghijklmnopqrst", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ"})
        EXPECT_FALSE(coachNameProblem(name)) << name << ": " << *coachNameProblem(name);
}

TEST(Coaches, AreFoundWhateverTheCase) {
    TestLeague league;
    league.addCoach("Bob");
    league.addCoach("ann");
    league.addCoach("Åke");
    EXPECT_EQ(findCoach(league.files, "BOB"), "Bob");
    EXPECT_EQ(findCoach(league.files, "åke"), "Åke");
    EXPECT_EQ(findCoach(league.files, "Bo"), std::nullopt);
    EXPECT_THAT(coachNames(league.files), testing::ElementsAre("ann", "Åke", "Bob"));
}

} // namespace

} // namespace iceline::test
