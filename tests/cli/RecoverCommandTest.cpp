#include "cli/CliTest.h"
#include "files/Change.h"
#include "files/Journal.h"
#include "files/JournalFormat.h"
#include "support/Test.h"

namespace iceline::cli {

namespace {

using namespace test;

namespace fs = std::filesystem;

constexpr const char* SeasonLength = "Games Until Playoffs.txt";

/// A league with a journal that makes the season 30 games long.
class RecoverCommandTest : public CliLeagueTest {
protected:
    void leaveJournal(const std::string& path) const {
        const std::string before = read(SeasonLength);
        write(Journal::FileName,
              std::string(JournalHeading) + journalEntry({{Change::Kind::Write, path, 0, "30\r\n"}},
                                                         {{true, before.size(), checksum(before)}}));
    }

    /// A call without --yes.
    Outcome ask(const std::string& command, const std::string& argument = "") const {
        std::vector<std::string> words{"--league", league().string(), command};
        if (!argument.empty())
            words.push_back(argument);
        return call(words);
    }

    /// Names of journals that were set aside.
    int setAside() const {
        int count = 0;
        for (const auto& entry : fs::directory_iterator(league()))
            count += entry.path().filename().string().starts_with("Unfinished Changes 2") ? 1 : 0;
        return count;
    }
};

} // namespace

TEST_F(RecoverCommandTest, FinishesWhatCanBeFinished) {
    EXPECT_EQ(iceline({"recover"}).out, "No change to the league is unfinished.\n");
    leaveJournal(SeasonLength);
    EXPECT_EQ(iceline({"recover"}).out, "The last change to the league has now been finished.\n");
    EXPECT_EQ(read(SeasonLength), "30\r\n");
}

TEST_F(RecoverCommandTest, AsksBeforeItSetsAsideWhatIsInDoubt) {
    leaveJournal(SeasonLength);
    write(SeasonLength, "50\r\n");
    const Outcome refused = iceline({"season-length", "60"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, AllOf(HasSubstr(SeasonLength), HasSubstr("\"iceline recover\"")));

    const Outcome asked = ask("recover");
    EXPECT_EQ(asked.status, 1);
    EXPECT_THAT(asked.out, AllOf(HasSubstr("Set the unfinished change aside?"), HasSubstr("all the same?")));
    EXPECT_EQ(read(SeasonLength), "50\r\n");
    EXPECT_EQ(setAside(), 0);

    EXPECT_EQ(iceline({"recover"}).status, 0);
    EXPECT_EQ(read(SeasonLength), "50\r\n");
    EXPECT_EQ(setAside(), 1);
    EXPECT_EQ(iceline({"season-length"}).out, "50\n");
}

TEST_F(RecoverCommandTest, OffersToSetAsideAloneWhatALaterVersionHasNoted) {
    std::string heading(JournalHeading);
    heading.at(heading.find('3')) = '4';
    write(Journal::FileName, heading);
    EXPECT_THAT(ask("recover").out,
                AllOf(HasSubstr("Set the unfinished change aside?"), Not(HasSubstr("all the same"))));
    EXPECT_EQ(iceline({"recover"}).status, 0);
    EXPECT_EQ(setAside(), 1);
}

TEST_F(RecoverCommandTest, LooksMeanwhileWithoutChangingAnything) {
    const std::string path = "Boston Bruins/Records.txt/in the way";
    leaveJournal(path);
    fs::create_directories(league() / "Boston Bruins/Post Season");
    const std::string journal = read(Journal::FileName);
    for (const auto& words :
         std::vector<std::vector<std::string>>{{"open", "Standings"}, {"coach", "list"}}) {
        const Outcome looked = iceline(words);
        EXPECT_EQ(looked.status, 0) << looked.err;
        EXPECT_THAT(looked.err, HasSubstr("\"iceline recover\""));
    }
    EXPECT_EQ(read(Journal::FileName), journal);
    EXPECT_EQ(iceline({"season-length", "60"}).status, 1);
}

} // namespace iceline::cli
