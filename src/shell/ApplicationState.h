#pragma once

#include "league/LeagueTable.h"
#include "league/Roster.h"
#include "league/StarOfGame.h"
#include "shell/LeaderColumns.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// What the windows share between one piece of work and the next. Everything else is read from the league's
/// files each time, and nothing here is stored: start-up works out PlayoffMode and SeasonFolder again.
struct ApplicationState {
    /// True while the windows work on the screen, False while Generate Webpages drives them to write pages.
    bool ShowWindows = false;
    bool PlayoffMode = false; ///< the regular season is over
    bool StartupDone = false; ///< start-up has run
    bool SplashDone = false;  ///< the credits have rolled to their end

    bool Logged = false; ///< this run has a line in the history

    /// Games that a team plays in the regular season; -1 when it was ended by hand.
    int SeasonLength = 0;

    /// "" in the regular season, "/Post Season" in the play-offs.
    std::string SeasonFolder;

    /// The game in hand.
    std::string SaveStatePath;
    int GameLastPeriod = 0; ///< highest period seen, 4 for overtime; 0 after an import
    std::array<StarOfGame, 3> Star;
    std::array<RosterIndex, 3> StarSlot; ///< roster rows of the stars

    /// The standings as they were last worked out.
    LeagueTable StandingsTable;
    DivisionOrder AdamsOrder;
    DivisionOrder PatrickOrder;
    DivisionOrder NorrisOrder;
    DivisionOrder SmytheOrder;
    ConferenceSeeds WalesSeeds;
    ConferenceSeeds CampbellSeeds;
    std::array<std::string, LeagueTeams> ClinchMark; ///< "", "x", "y" or "z"

    PlayoffSeriesTable PlayoffSeries;

    /// Leader tables as they were last filled, by the season's window or by the play-offs'. The import's
    /// season test reads the games played of TeamLeaderTable.
    std::array<TeamLeader, LeagueTeams> TeamLeaderTable;
    std::vector<PlayerLeader> PlayerLeaderTable;
    std::vector<GoalieLeader> GoalieLeaderTable;
    std::vector<StarLeader> StarLeaderTable;
    std::vector<TeamLeader> CoachLeaderTable; ///< by CoachIndex

    /// The part of the year whose files the league works on.
    PartOfYear partOfYear() const { return SeasonFolder.empty() ? PartOfYear::Season : PartOfYear::Playoffs; }
};

} // namespace iceline
