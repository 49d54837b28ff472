#pragma once

#include "store/PlayerFiles.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

/// Which figures of a player are shown, in what order and under which heads: one row a figure for each place
/// that shows them.
namespace iceline {

/// What a column shows: a figure of the stat line, or the player's number or the first character of his
/// position in the roster.
template <class Stats>
using PlayerField = std::variant<int Stats::*, double Stats::*, int RosterRow::*, std::string RosterRow::*>;

/// The value of a field as a number; a position is the code of its first character, 0 when it is empty.
template <class Stats>
struct FigureOf {
    const RosterRow& player;
    const Stats& stats;

    double operator()(const PlayerField<Stats>& field) const { return std::visit(*this, field); }
    double operator()(int Stats::*field) const { return stats.*field; }
    double operator()(double Stats::*field) const { return stats.*field; }
    double operator()(int RosterRow::*field) const { return player.*field; }
    double operator()(std::string RosterRow::*field) const {
        const std::string& text = player.*field;
        return text.empty() ? 0 : static_cast<unsigned char>(text.front());
    }
};

/// A column of a team's table: in the window, in its fragments and in the terminal. The table keeps every
/// figure as a whole number, fractions times their scale; what is shown is divided again.
template <class Stats>
struct PlayerColumn {
    std::string_view caption; ///< "Pts."
    std::string_view control; ///< array of the labels that show it
    PlayerField<Stats> field;
    int scale = 1;
    int shownDividedBy = scale;
};

/// The first columns are in front of the name: position and number.
inline constexpr std::size_t ColumnsBeforeName = 2;

inline constexpr auto SkaterColumns = std::to_array<PlayerColumn<SkaterStats>>({
    {"Pos", "PlayerStatsPos", &RosterRow::Position},
    {"#", "PlayerStatsNumber", &RosterRow::Number},
    {"Pow.Rank", "PlayerStatsPR", &SkaterStats::Rating, 1000},
    {"G", "PlayerStatsG", &SkaterStats::G},
    {"A", "PlayerStatsA", &SkaterStats::A},
    {"Pts.", "PlayerStatsPts", &SkaterStats::Pts},
    {"PPG", "PlayerStatsPPG", &SkaterStats::PtsPG, 100},
    {"S%", "PlayerStatsSPct", &SkaterStats::ShotPct, 10},
    {"SOG", "PlayerStatsSOG", &SkaterStats::SOG},
    {"PP", "PlayerStatsPP", &SkaterStats::PPG},
    {"SH", "PlayerStatsSH", &SkaterStats::SHG},
    {"PIM", "PlayerStatsPIM", &SkaterStats::PIM},
    {"GP", "PlayerStatsGP", &SkaterStats::GP},
});

/// A goalie's power ranking is shown at a tenth of its figure, unlike in the league's table.
inline constexpr auto GoalieColumns = std::to_array<PlayerColumn<GoalieStats>>({
    {"Pos", "GPlayerStatsPos", &RosterRow::Position},
    {"#", "GPlayerStatsNumber", &RosterRow::Number},
    {"Pow.Rank", "GPlayerStatsPR", &GoalieStats::Rating, 100, 1000},
    {"W", "GPlayerStatsW", &GoalieStats::GW},
    {"L", "GPlayerStatsL", &GoalieStats::GL},
    {"T", "GPlayerStatsT", &GoalieStats::GT},
    {"GAA", "GPlayerStatsGAA", &GoalieStats::GAA, 100},
    {"SV%", "GPlayerStatsSVPct", &GoalieStats::SvPct, 1000},
    {"SHO", "GPlayerStatsSHO", &GoalieStats::SO},
    {"SF", "GPlayerStatsSF", &GoalieStats::SA},
    {"GA", "GPlayerStatsGA", &GoalieStats::GA},
    {"A", "GPlayerStatsA", &GoalieStats::A},
    {"GP", "GPlayerStatsGP", &GoalieStats::GP},
});

/// The place of the skaters' column of that caption; one that does not exist does not compile.
consteval int skaterColumn(std::string_view caption) {
    for (std::size_t column = 0; column < SkaterColumns.size(); ++column)
        if (SkaterColumns[column].caption == caption)
            return static_cast<int>(column);
    throw std::invalid_argument("the skaters have no such column");
}

/// A category of team leaders.
struct LeaderCategory {
    std::string_view heading;        ///< on the page and in the terminal
    std::string_view caption;        ///< in the window
    std::string_view captionControl; ///< the label of the caption
    std::string_view control;        ///< the label of the figure; the name's ends in "Name"
    int column;                      ///< of the skaters' table
};

inline constexpr auto LeaderCategories = std::to_array<LeaderCategory>({
    {"Goals", "Goals", "Text4", "PlayerLeaderG", skaterColumn("G")},
    {"Assists", "Assists", "Text5", "PlayerLeaderA", skaterColumn("A")},
    {"Points", "Points", "Text6", "PlayerLeaderPts", skaterColumn("Pts.")},
    {"Pts. Per Game", "Points Per Game", "Text11", "PlayerLeaderPPG", skaterColumn("PPG")},
    {"Power Ranking", "Power Ranking", "Text7", "PlayerLeaderPR", skaterColumn("Pow.Rank")},
    {"Penalty Minutes", "Penalty Minutes", "Text8", "PlayerLeaderPIM", skaterColumn("PIM")},
    {"PP Goals", "PP Goals", "Text9", "PlayerLeaderPP", skaterColumn("PP")},
    {"SH Goals", "SH Goals", "Text10", "PlayerLeaderSH", skaterColumn("SH")},
    {"Shots on Goal", "Shots on Goal", "Text13", "PlayerLeaderSOG", skaterColumn("SOG")},
    {"Shot %", "Shot %", "Text12", "PlayerLeaderSPct", skaterColumn("S%")},
});

/// A column of the table of a player's page; below a counter its average a game may follow in a second row.
template <class Stats>
struct PageColumn {
    std::string_view head;
    PlayerField<Stats> field;
    std::string_view averageHead = "";
    std::optional<PlayerField<Stats>> average = std::nullopt;
};

inline constexpr auto SkaterPageColumns = std::to_array<PageColumn<SkaterStats>>({
    {"GP", &SkaterStats::GP},
    {"Pow.Rank", &SkaterStats::Rating},
    {"G", &SkaterStats::G, "GPG", &SkaterStats::GPG},
    {"A", &SkaterStats::A, "APG", &SkaterStats::APG},
    {"Pts.", &SkaterStats::Pts, "PPG", &SkaterStats::PtsPG},
    {"PP", &SkaterStats::PPG},
    {"SH", &SkaterStats::SHG},
    {"SOG", &SkaterStats::SOG, "SOGPG", &SkaterStats::SOGPG},
    {"S%", &SkaterStats::ShotPct},
    {"PIM", &SkaterStats::PIM, "PIMPG", &SkaterStats::PIMPG},
    {"Three Star Pts.", &SkaterStats::StarPoints},
});

inline constexpr auto GoaliePageColumns = std::to_array<PageColumn<GoalieStats>>({
    {"GP", &GoalieStats::GP},
    {"Pow.Rank", &GoalieStats::Rating},
    {"W", &GoalieStats::GW},
    {"L", &GoalieStats::GL},
    {"T", &GoalieStats::GT},
    {"GAA", &GoalieStats::GAA},
    {"Sv%", &GoalieStats::SvPct},
    {"SHO", &GoalieStats::SO},
    {"SF", &GoalieStats::SA},
    {"GA", &GoalieStats::GA},
    {"A", &GoalieStats::A},
    {"Three Star Pts.", &GoalieStats::StarPoints},
});

/// A figure of a player's profile.
template <class Stats>
struct ProfileFigure {
    std::string_view control;
    PlayerField<Stats> field;
    std::string_view dash = ""; ///< label of the "-" that joins it to the figure before it, under one head
};

inline constexpr auto SkaterProfileTotals = std::to_array<ProfileFigure<SkaterStats>>({
    {"PlyrGP", &SkaterStats::GP},
    {"PlyrG", &SkaterStats::G},
    {"PlyrA", &SkaterStats::A},
    {"PlyrPts", &SkaterStats::Pts},
    {"PlyrSOG", &SkaterStats::SOG},
    {"PlyrSPct", &SkaterStats::ShotPct},
    {"PlyrPIM", &SkaterStats::PIM},
    {"PlyrPP", &SkaterStats::PPG},
    {"PlyrSH", &SkaterStats::SHG},
});

inline constexpr auto SkaterProfileAverages = std::to_array<ProfileFigure<SkaterStats>>({
    {"PlyrPowRanking", &SkaterStats::Rating},
    {"PlyrGPG", &SkaterStats::GPG},
    {"PlyrAPG", &SkaterStats::APG},
    {"PlyrPPG", &SkaterStats::PtsPG},
    {"PlyrSOGPG", &SkaterStats::SOGPG},
    {"PlyrPIMPG", &SkaterStats::PIMPG},
    {"Plyr3Star", &SkaterStats::StarPoints},
});

inline constexpr auto GoalieProfileFigures = std::to_array<ProfileFigure<GoalieStats>>({
    {"GoaliePowRanking", &GoalieStats::Rating},
    {"GoalieGP", &GoalieStats::GP},
    {"GoalieW", &GoalieStats::GW},
    {"GoalieL", &GoalieStats::GL, "Text4"},
    {"GoalieT", &GoalieStats::GT, "Text5"},
    {"GoalieGAA", &GoalieStats::GAA},
    {"GoalieSavePct", &GoalieStats::SvPct},
    {"GoalieShutouts", &GoalieStats::SO},
    {"ShotsFaced", &GoalieStats::SA},
    {"GoalsAgainst", &GoalieStats::GA},
    {"GoalieA", &GoalieStats::A},
    {"Goalie3Star", &GoalieStats::StarPoints},
});

/// A line of figures in the profile's window, below a label that holds all their heads; two blanks or more
/// separate the heads.
template <class Stats>
struct ProfileLine {
    std::string_view headsControl;
    std::string_view heads;
    std::span<const ProfileFigure<Stats>> figures;
};

inline constexpr std::array<ProfileLine<SkaterStats>, 2> SkaterProfileLines{{
    {"Text37",
     "GP          G              A                 Pts.               SOG           S%           PIM       "
     "PP          SH",
     SkaterProfileTotals},
    {"Text38",
     "Pow. Rnkg          GPG        APG              PPG               SPG           PIMG     3 Star Pts.",
     SkaterProfileAverages},
}};

inline constexpr std::array<ProfileLine<GoalieStats>, 1> GoalieProfileLines{{
    {"Text3",
     "Pow.Rnkg  GP        W - L - T           GAA         Save%     SHO        SF          GA          A     "
     " 3 Star Pts.",
     GoalieProfileFigures},
}};

/// Calls `use` with each head of a profile's line and the place in the text where it begins.
template <class Use>
constexpr void forEachHead(std::string_view heads, Use use) {
    std::size_t begin = 0;
    while (begin < heads.size()) {
        const std::size_t end = std::min(heads.find("  ", begin), heads.size());
        use(begin, heads.substr(begin, end - begin));
        begin = std::min(heads.find_first_not_of(' ', end), heads.size());
    }
}

/// Whether a line has a head for each figure that is not joined to the one before it.
template <class Stats>
constexpr bool hasAllHeads(const ProfileLine<Stats>& line) {
    long heads = 0;
    forEachHead(line.heads, [&heads](std::size_t, std::string_view) { ++heads; });
    return heads == std::ranges::count(line.figures, std::string_view(""), &ProfileFigure<Stats>::dash);
}
static_assert(std::ranges::all_of(SkaterProfileLines, hasAllHeads<SkaterStats>));
static_assert(std::ranges::all_of(GoalieProfileLines, hasAllHeads<GoalieStats>));

} // namespace iceline
