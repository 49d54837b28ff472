#pragma once

#include "games/StatExtractor.h"
#include "samples/SaveStateWriter.h"
#include "support/Test.h"
#include "support/TestLeague.h"

#include <set>
#include <string>

namespace iceline::test {

/// Boston 3, Montreal 1: a game with something for every file of the league.
inline GameSheet lovelyGame() {
    GameSheet game(Boston, Montreal);
    game.addGoal(1, 60, Side::Home, Strength::PowerPlay, 4, 6);
    game.addGoal(2, 60, Side::Home, Strength::Even, 4, 5, 6);
    game.addGoal(2, 90, Side::Home, Strength::OneManShort, 7);
    game.addGoal(3, 15, Side::Away, Strength::TwoManPowerPlay, 8, 9);
    game.addShot(Side::Home, 6);
    game.addPenalty(1, 50, Side::Away, Infraction::Hooking, 5);
    game.crowdMeter = 95;
    return game;
}

/// A league in memory and its game window.
class ImportLeague : public testing::Test {
protected:
    StatExtractor& window() { return StatExtractor::in(league.app); }
    ApplicationState& state() { return league.app.state; }
    MemoryFiles& files() { return league.files; }

    void choose(GameKind kind) {
        window().Exhibition = kind == GameKind::Exhibition;
        window().Season = !window().Exhibition;
    }

    void save(const std::string& path, const GameSheet& game) { files().files[path] = saveStateBytes(game); }

    void select(const std::string& path) {
        league.platform.chosen.push_back(path);
        window().LoadStats_Click();
    }

    void select(const GameSheet& game) {
        save("Games/game.gs0", game);
        select("Games/game.gs0");
    }

    void import(const GameSheet& game) {
        select(game);
        window().ImportStats_Click();
    }

    /// Ends the regular season and opens a series of Boston, as TeamA, against Montreal.
    void openSeries(std::size_t series, int winsA = 0, int winsB = 0) {
        state().PlayoffMode = true;
        state().SeasonFolder = seasonFolder(PartOfYear::Playoffs);
        state().PlayoffSeries = {};
        state().PlayoffSeries[series] = {winsA, winsB, Boston, Montreal};
        files().files[paths::PlayoffRecords] = textOf(state().PlayoffSeries);
    }

    /// Makes the season one game long, which all teams but Boston and Montreal have played.
    void finishSeasonOfTheOthers() {
        TeamRecord done;
        done.GP = 1;
        for (const TeamIndex team : AllLeagueTeams)
            if (team != Boston && team != Montreal)
                league.setRecord(team, PartOfYear::Season, done);
        window();
        state().SeasonLength = 1;
    }

    std::string content(const std::string& path) { return files().read(path); }
    int gameNumber() { return readNumber32(files(), paths::OverallGameNumber); }

    /// Data files of the league, pages left aside, that differ from those of before.
    std::set<std::string> changedSince(const std::map<std::string, std::string>& before) {
        std::set<std::string> changed;
        for (const auto& [path, text] : files().files)
            if (!path.starts_with(paths::WebRoot) && !path.starts_with("Games/") &&
                !path.starts_with("History/") && (!before.contains(path) || before.at(path) != text))
                changed.insert(path);
        return changed;
    }

    TestLeague league;
};

} // namespace iceline::test
