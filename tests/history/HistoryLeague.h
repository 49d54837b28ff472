#pragma once

#include "games/BookEntry.h"
#include "games/StatExtractor.h"
#include "history/Audit.h"
#include "history/HistoryChanges.h"
#include "samples/SampleGames.h"
#include "samples/SaveStateWriter.h"
#include "season/Options.h"
#include "season/SeasonOperations.h"
#include "shell/LoggedChange.h"
#include "support/TestLeague.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace iceline::test {

/// A league in memory whose program can be started again, on which operations are done as a user does them.
class HistoryLeague {
public:
    MemoryFiles& files() { return league_->files; }
    Application& app() { return league_->app; }
    TestPlatform& platform() { return league_->platform; }
    StatExtractor& window() { return StatExtractor::in(app()); }

    /// The program is left and started again.
    void restart() {
        ++starts;
        league_ = std::make_unique<TestLeague>(MemoryFiles(league_->files));
    }

    int starts = 0; ///< further ones

    /// Imports made-up game `number` of the schedule, or the file of that name.
    void import(int number, bool exhibition = false, const std::string& homeCoach = "") {
        importBetween(sampleSchedule(number + 1, 1).at(static_cast<std::size_t>(number)), number, exhibition,
                      homeCoach);
    }

    /// Imports made-up game `number` as one of two other teams.
    void importBetween(const Pairing& teams, int number, bool exhibition = false,
                       const std::string& homeCoach = "") {
        static const LeagueRosters rosters = builtInRosters();
        files().makeFolder("Games");
        const std::string path = "Games/game" + std::to_string(number) + ".gs0";
        files().files[path] = saveStateBytes(sampleGame(1, number + 1, teams, rosters));
        app().windows().unload(WindowId::StatExtractor);
        window().Exhibition = exhibition;
        window().Season = !exhibition;
        const auto& coaches = window().content().coaches;
        const auto coach = std::ranges::find(coaches, homeCoach);
        window().T1Coach = coach == coaches.end() ? 0 : static_cast<int>(coach - coaches.begin());
        platform().chosen.push_back(path);
        window().LoadStats_Click();
        window().ImportStats_Click();
    }

    Options& options() {
        app().windows().unload(WindowId::Options);
        return static_cast<Options&>(app().windows().use(WindowId::Options));
    }

    void addCoach(const std::string& name) {
        Options& window = options();
        window.NewC = name;
        window.Command1_Click();
    }

    void chooseCoach(Options& window, const std::string& name) {
        const auto& coaches = window.content().coaches;
        const auto coach = std::ranges::find(coaches, name);
        window.Combo1 =
            coach == coaches.end() ? Options::NotChosen : static_cast<int>(coach - coaches.begin());
    }

    void deleteCoach(const std::string& name) {
        Options& window = options();
        chooseCoach(window, name);
        window.DeleteCoach_Click();
    }

    void clearCoach(const std::string& name) {
        Options& window = options();
        chooseCoach(window, name);
        window.CoachTeam_Click();
    }

    void renameCoach(const std::string& name, const std::string& to) {
        Options& window = options();
        chooseCoach(window, name);
        window.NewC = to;
        window.Command2_Click();
    }

    void setSeasonLength(const std::string& length) {
        Options& window = options();
        window.SeasonLength = length;
        window.EnterSeasonLength_Click();
    }

    void goToPlayoffs() { options().GoToPlayoffs_Click(); }

    void clear(int team) {
        Options& window = options();
        window.ClearTeamSelect = team;
        window.Command8_Click();
    }

    /// What an operation makes of the books, and its line; nothing when the league has no place for it.
    template <class Kind>
    void perform(const Kind& operation) {
        LoggedChange change(app());
        if constexpr (requires { misfitOf(app(), operation); })
            if (misfitOf(app(), operation))
                return;
        carryOut(app(), operation);
        change.commit(operation);
    }

    /// The books and pages: everything but history and save states.
    std::map<std::string, std::string> books() {
        std::map<std::string, std::string> kept;
        for (const auto& [path, content] : files().files)
            if (!path.starts_with("History/") && !path.starts_with("Games/"))
                kept[path] = content;
        return kept;
    }

private:
    std::unique_ptr<TestLeague> league_ = std::make_unique<TestLeague>();
};

} // namespace iceline::test
