#pragma once

#include "games/GameReport.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

/// What a game report shows, once for window, terminal and page.
namespace iceline {

/// A team's figure, and the end of its control's name: "Shots" of Team1Shots.
struct GameFigure {
    using Member = std::variant<int TeamGameStats::*, std::string TeamGameStats::*>;

    std::string_view control;
    Member member;

    /// The figure as text; `numberAsText` is numberText() or itemText().
    std::string text(const TeamGameStats& team, std::string (*numberAsText)(double)) const {
        if (const auto* number = std::get_if<int TeamGameStats::*>(&member))
            return numberAsText(team.**number);
        return team.*std::get<std::string TeamGameStats::*>(member);
    }
};

/// A line of a team's figures: one, or two with a slash between them.
struct TeamFigureLine {
    std::string_view caption; ///< in window and terminal
    GameFigure first;
    std::optional<GameFigure> second;
    std::string_view secondCaption; ///< where the terminal gives the second figure a line of its own
    std::string_view pageTitle;     ///< none: the page leaves the line out
    std::string TeamGameStats::*pageNote = nullptr; ///< what the page adds in brackets
};

inline constexpr std::array TeamFigureLines{
    TeamFigureLine{"Goals", {"Score", &TeamGameStats::Goals}, {}, "", "Score"},
    TeamFigureLine{"Shots", {"Shots", &TeamGameStats::Shots}, {}, "", "SOG"},
    TeamFigureLine{"Shooting Pct.%", {"ShootingPct", &TeamGameStats::ShootingPct}, {}, "", "S%"},
    TeamFigureLine{
        "PPG / PPA", {"PPG", &TeamGameStats::PPG}, GameFigure{"PPA", &TeamGameStats::PPA}, "", "Power Plays"},
    TeamFigureLine{"Penalties",
                   {"Penalties", &TeamGameStats::Penalties},
                   GameFigure{"PenM", &TeamGameStats::PenM},
                   "Penalty Minutes",
                   "Penalties"},
    TeamFigureLine{"Faceoffs Won", {"FaceoffsWon", &TeamGameStats::FaceoffsWon}, {}, "", "Faceoffs Won"},
    TeamFigureLine{"Faceoff Win %", {"FaceWinPct", &TeamGameStats::FaceWinPct}, {}, "", ""},
    TeamFigureLine{"Body Checks", {"BodyChecks", &TeamGameStats::BodyChecks}, {}, "", "Body Checks"},
    TeamFigureLine{"Attacking Zone", {"AttackZone", &TeamGameStats::AttackZoneText}, {}, "", "Att. Zone"},
    TeamFigureLine{"Passes / Pass Att.",
                   {"PassComp", &TeamGameStats::PassComp},
                   GameFigure{"PassAtt", &TeamGameStats::PassAtt},
                   "",
                   "Passing",
                   &TeamGameStats::PassAcc},
    TeamFigureLine{"Pass Accuracy %", {"PassAcc", &TeamGameStats::PassAcc}, {}, "", ""},
};

/// A player's figure.
struct PlayerFigure {
    std::string_view caption;
    std::string_view control; ///< the end of the control array's name: "Goals" of Team1Goals(3)
    int GamePlayerRow::*figure;
};

inline constexpr std::array PlayerFigures{
    PlayerFigure{"G", "Goals", &GamePlayerRow::G},       PlayerFigure{"A", "Assists", &GamePlayerRow::A},
    PlayerFigure{"Pts.", "Points", &GamePlayerRow::Pts}, PlayerFigure{"SOG", "SOG", &GamePlayerRow::SOG},
    PlayerFigure{"PIM", "PIM", &GamePlayerRow::PIM},
};

/// A star's place.
struct StarPlace {
    std::string_view caption; ///< in window and terminal
    std::string_view pageTitle;
    std::string_view nameControl;
    std::string_view teamControl;
};

inline constexpr std::array<StarPlace, 3> StarPlaces{{
    {"1st Star:", "First Star", "FirstStar", "FirstStarTeam"},
    {"2nd Star:", "Second Star", "SecondStar", "SecondStarTeam"},
    {"3rd Star:", "Third Star", "ThirdStar", "ThirdStarTeam"},
}};

} // namespace iceline
