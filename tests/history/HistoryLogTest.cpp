#include "log/HistoryLog.h"

#include "history/HistoryLeague.h"
#include "support/ErrorMessage.h"

namespace iceline {
namespace {

using test::errorMessage;
using test::HistoryLeague;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(HistoryLogTest, ADamagedLineIsNamedAndANewLogGoesOnFromTheBooks) {
    HistoryLeague league;
    league.import(0);
    league.import(1);
    std::string& log = league.files().files.at(paths::HistoryLog);
    log.replace(log.rfind("\"crowdMeter\""), 12, "\"crowdmeter\"");
    EXPECT_THAT(errorMessage([&] { readHistory(league.files()); }),
                HasSubstr("History/Log.jsonl: line 3 is damaged: its checksum"));

    league.files().files.erase(paths::HistoryIndex);
    const std::string damaged = log;
    league.import(2);
    EXPECT_THAT(league.platform().said(), testing::Contains(HasSubstr("Begin a new one from the books")));
    EXPECT_EQ(readHistory(league.files()).size(), 2U);
    EXPECT_THAT(auditBooks(league.app()).differences, IsEmpty());
    const auto& files = league.files().files;
    EXPECT_TRUE(std::ranges::any_of(files, [&](const auto& file) {
        return file.first.starts_with("History/Kept aside") && file.second == damaged;
    }));
}

TEST(HistoryLogTest, AnIndexThatIsMissingIsMadeAsItWas) {
    HistoryLeague league;
    league.addCoach("Ann");
    league.import(0, true, "Ann");
    league.import(1);
    undo(league.app(), 2);
    const std::string index = league.files().files.at(paths::HistoryIndex);
    league.files().files.erase(paths::HistoryIndex);
    undo(league.app(), 3);
    redo(league.app());
    const std::string again = league.files().files.at(paths::HistoryIndex);
    EXPECT_EQ(again.substr(0, again.rfind("line ")), index.substr(0, index.rfind("line ")));
}

TEST(HistoryLogTest, AGameImportedAgainSinceItWasUndoneIsNotDoneAgain) {
    HistoryLeague league;
    league.import(0);
    league.import(1);
    undo(league.app(), std::nullopt);
    undo(league.app(), std::nullopt);
    league.import(0);
    EXPECT_THAT([&] { redo(league.app()); },
                testing::ThrowsMessage<HistoryRefusal>(HasSubstr("has been imported as game 1, ")));
    undo(league.app(), std::nullopt);
    redo(league.app());
    EXPECT_EQ(league.files().files.at(paths::OverallGameNumber), "1\r\n");
}

TEST(HistoryLogTest, AnAuditNamesWhatWasChangedByHandAndTakesItEitherWay) {
    HistoryLeague league;
    league.import(0);
    const std::string path = "Boston Bruins/Records.txt";
    const std::string asGiven = league.files().files.at(path);
    const std::string byHand = "7" + asGiven.substr(1);
    league.files().files.at(path) = byHand;
    league.files().files.at(paths::OverallGameNumber) = "7\r\n";
    Audit audit = auditBooks(league.app());
    ASSERT_EQ(audit.differences.size(), 2U);
    EXPECT_THAT(textsOf(audit.differences[0]),
                ElementsAre(path + ", line 1, item 1 (Wins): the file has 7, the games give " + asGiven[0]));
    EXPECT_THAT(
        textsOf(audit.differences[1]),
        ElementsAre(StartsWith("Overall Game Number.txt, line 1, item 1: the file has 7, the games give "
                               "1 since game 1, ")));

    repairDifferences(league.app(), audit);
    EXPECT_EQ(league.files().files.at(path), asGiven);
    league.files().files.at(path) = byHand;
    acceptDifferences(league.app(), auditBooks(league.app()));
    EXPECT_THAT(auditBooks(league.app()).differences, IsEmpty());
    undo(league.app(), std::nullopt);
    EXPECT_EQ(league.files().files.at(path), asGiven);
}

} // namespace
} // namespace iceline
