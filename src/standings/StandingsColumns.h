#pragma once

#include "league/Numbers.h"
#include "standings/PointsStandings.h"
#include "standings/SplitStandings.h"

#include <array>
#include <string>
#include <string_view>

namespace iceline {

enum class FigureForm { Whole, Thousandths };

/// A column of a standings table, the same in the window, on the page and in the terminal.
template <class Record>
struct StandingsColumn {
    std::string_view caption; ///< "Pts."
    int Record::*figure;
    std::string_view control; ///< what the name of the window's control array ends in: "Points"
    FigureForm form = FigureForm::Whole;

    /// The figure in window and terminal: 625 thousandths are "0.625".
    std::string text(const Record& record) const {
        return form == FigureForm::Whole ? std::to_string(record.*figure)
                                         : numberText(record.*figure / 1000.0);
    }

    /// The figure on the page: 625 thousandths are " .625 ".
    std::string item(const Record& record) const {
        return form == FigureForm::Whole ? std::to_string(record.*figure) : itemText(record.*figure / 1000.0);
    }
};

/// Divisions and conferences.
inline constexpr std::array<StandingsColumn<TeamStanding>, 7> PointsColumns{{
    {"W", &TeamStanding::Wins, "Wins"},
    {"L", &TeamStanding::Losses, "Losses"},
    {"T", &TeamStanding::Ties, "Ties"},
    {"Pts.", &TeamStanding::Points, "Points"},
    {"GF", &TeamStanding::GF, "GoalsFor"},
    {"GA", &TeamStanding::GA, "GoalsAgainst"},
    {"GP", &TeamStanding::GP, "GP"},
}};

/// Home games and away games.
inline constexpr std::array<StandingsColumn<SplitRecord>, 5> HomeAwayColumns{{
    {"W", &SplitRecord::Wins, "Wins"},
    {"L", &SplitRecord::Losses, "Losses"},
    {"T", &SplitRecord::Ties, "Ties"},
    {"Win%", &SplitRecord::WinPercent, "TeamWinPct", FigureForm::Thousandths},
    {"GP", &SplitRecord::GP, "TeamsGP"},
}};

/// Games against the teams of one conference.
inline constexpr std::array<StandingsColumn<SplitRecord>, 4> VersusColumns{{
    {"W", &SplitRecord::Wins, "Wins"},
    {"L", &SplitRecord::Losses, "Losses"},
    {"T", &SplitRecord::Ties, "Ties"},
    {"Win%", &SplitRecord::WinPercent, "GP", FigureForm::Thousandths},
}};

} // namespace iceline
