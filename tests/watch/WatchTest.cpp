#include "history/HistoryLeague.h"
#include "support/TemporaryFolder.h"
#include "watch/FolderWatch.h"
#include "watch/GameWatch.h"

#include <fstream>

namespace iceline {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(FolderWatch, TellsOfAFileOnceItHasBeenStillAndAgainWhenItChanges) {
    const test::TemporaryFolder folder;
    const auto path = [&](const char* name) { return folder.path().generic_string() + "/" + name; };
    const auto write = [&](const char* name, const char* text) { std::ofstream(path(name)) << text; };
    write("former", "a game of last week");
    FolderWatch watch(folder.path().generic_string());
    FolderWatch::Time now;
    EXPECT_THAT(watch.wholeFiles(now += 5s), IsEmpty());

    write("slot1", "half");
    EXPECT_THAT(watch.wholeFiles(now += 1s), IsEmpty());
    write("slot1", "half and half");
    EXPECT_THAT(watch.wholeFiles(now += 1s), IsEmpty());
    write("slot2", "whole");
    EXPECT_THAT(watch.wholeFiles(now += 1900ms), IsEmpty());
    EXPECT_THAT(watch.wholeFiles(now += 100ms), ElementsAre(path("slot1")));
    EXPECT_THAT(watch.wholeFiles(now += 2s), ElementsAre(path("slot2")));

    // An emulator writes the same slot again, and as many bytes.
    std::filesystem::last_write_time(path("slot1"), std::filesystem::last_write_time(path("slot1")) + 1s);
    write("former", "a game of tonight");
    EXPECT_THAT(watch.wholeFiles(now += 5s), IsEmpty());
    EXPECT_THAT(watch.wholeFiles(now += 2s), ElementsAre(path("former"), path("slot1")));
    std::filesystem::remove(path("slot1"));
    EXPECT_THAT(watch.wholeFiles(now += 5s), IsEmpty());
    write("slot1", "half and half");
    EXPECT_THAT(watch.wholeFiles(now += 1s), IsEmpty());
    EXPECT_THAT(watch.wholeFiles(now += 2s), ElementsAre(path("slot1")));
}

TEST(GameWatch, TellsOfNewGamesAndOfARefusalOnce) {
    test::HistoryLeague league;
    league.import(0);
    league.import(1);
    const std::string slot = "Games/slot.gs0";
    const auto overwrite = [&](const std::string& content) { league.files().files[slot] = content; };
    GameWatch watch;
    const auto refusal = [&] {
        const auto game = watch.look(league.app(), slot);
        return game && game->refusal ? *game->refusal : "";
    };

    overwrite("cut");
    EXPECT_THAT(refusal(), HasSubstr("holds no finished game: the file is cut."));
    overwrite("cut again");
    EXPECT_EQ(refusal(), "");
    EXPECT_THAT(watch.look(league.app(), "Games/other.gs0")->refusal,
                testing::Optional(HasSubstr("other.gs0")));
    overwrite(league.files().files["Games/game1.gs0"]);
    EXPECT_FALSE(watch.look(league.app(), slot));
    undo(league.app(), std::nullopt);
    const auto game = watch.look(league.app(), slot);
    ASSERT_TRUE(game);
    EXPECT_FALSE(game->refusal);
    EXPECT_EQ(game->score, "Calgary Flames 4, San Jose Sharks 5");
}

TEST(GameWatch, AGameKeepsItsPageWhenItsSlotIsWrittenAgain) {
    test::HistoryLeague league;
    league.import(0);
    league.import(1);
    undo(league.app(), std::nullopt);
    league.files().files["Games/game0.gs0"] = league.files().files["Games/game1.gs0"];
    StatExtractor& window = league.window();
    window.showGame("Games/game0.gs0");
    window.IsSlot = true;
    window.ImportStats_Click();
    EXPECT_THAT(league.files().filesIn(paths::page("BoxScores")), ElementsAre("game0-2.htm", "game0.htm"));
    const auto books = league.books();
    undo(league.app(), std::nullopt);
    redo(league.app());
    EXPECT_EQ(league.books(), books);
}

} // namespace
} // namespace iceline
