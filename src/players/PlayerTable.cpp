#include "players/PlayerTable.h"

#include "league/Numbers.h"
#include "league/Selection.h"

namespace iceline {

namespace {

constexpr int PositionColumn = 0;

constexpr std::array<PlayerColumn, PlayerTableColumns> SkaterColumns{{
    {"Pos", "PlayerStatsPos", 1, 1},
    {"#", "PlayerStatsNumber", 1, 1},
    {"Pow.Rank", "PlayerStatsPR", 1000, 1000},
    {"G", "PlayerStatsG", 1, 1},
    {"A", "PlayerStatsA", 1, 1},
    {"Pts.", "PlayerStatsPts", 1, 1},
    {"PPG", "PlayerStatsPPG", 100, 100},
    {"S%", "PlayerStatsSPct", 10, 10},
    {"SOG", "PlayerStatsSOG", 1, 1},
    {"PP", "PlayerStatsPP", 1, 1},
    {"SH", "PlayerStatsSH", 1, 1},
    {"PIM", "PlayerStatsPIM", 1, 1},
    {"GP", "PlayerStatsGP", 1, 1},
}};

/// A goalie's power ranking is shown at a tenth of its figure, unlike in the league's table.
constexpr std::array<PlayerColumn, PlayerTableColumns> GoalieColumns{{
    {"Pos", "GPlayerStatsPos", 1, 1},
    {"#", "GPlayerStatsNumber", 1, 1},
    {"Pow.Rank", "GPlayerStatsPR", 100, 1000},
    {"W", "GPlayerStatsW", 1, 1},
    {"L", "GPlayerStatsL", 1, 1},
    {"T", "GPlayerStatsT", 1, 1},
    {"GAA", "GPlayerStatsGAA", 100, 100},
    {"SV%", "GPlayerStatsSVPct", 1000, 1000},
    {"SHO", "GPlayerStatsSHO", 1, 1},
    {"SF", "GPlayerStatsSF", 1, 1},
    {"GA", "GPlayerStatsGA", 1, 1},
    {"A", "GPlayerStatsA", 1, 1},
    {"GP", "GPlayerStatsGP", 1, 1},
}};

double positionCode(const RosterRow& row) {
    return row.Position.empty() ? 0 : static_cast<unsigned char>(row.Position.front());
}

std::array<double, PlayerTableColumns> skaterFigures(const RosterRow& row, const SkaterStats& s) {
    return {positionCode(row),
            static_cast<double>(row.Number),
            s.Rating,
            static_cast<double>(s.G),
            static_cast<double>(s.A),
            static_cast<double>(s.Pts),
            s.PtsPG,
            s.ShotPct,
            static_cast<double>(s.SOG),
            static_cast<double>(s.PPG),
            static_cast<double>(s.SHG),
            static_cast<double>(s.PIM),
            static_cast<double>(s.GP)};
}

std::array<double, PlayerTableColumns> goalieFigures(const RosterRow& row, const GoalieStats& g) {
    return {positionCode(row),
            static_cast<double>(row.Number),
            g.Rating,
            static_cast<double>(g.GW),
            static_cast<double>(g.GL),
            static_cast<double>(g.GT),
            g.GAA,
            g.SvPct,
            static_cast<double>(g.SO),
            static_cast<double>(g.SA),
            static_cast<double>(g.GA),
            static_cast<double>(g.A),
            static_cast<double>(g.GP)};
}

std::string shownText(int value, int column, const PlayerColumn& how) {
    if (column == PositionColumn)
        return value == 0 ? "" : std::string(1, static_cast<char>(value));
    return numberText(value / how.shownDividedBy);
}

} // namespace

std::span<const PlayerColumn> skaterColumns() {
    return SkaterColumns;
}

std::span<const PlayerColumn> goalieColumns() {
    return GoalieColumns;
}

PlayerTable PlayerTable::skaters(const Roster& roster, const TeamPlayerStats& stats) {
    PlayerTable table(SkaterColumns);
    for (int row = 0; row < RosterRows && !roster[row].isEmpty(); ++row)
        if (const auto* skater = std::get_if<SkaterStats>(&stats[row]))
            table.add(roster[row].Name, skaterFigures(roster[row], *skater));
    return table;
}

PlayerTable PlayerTable::goalies(const Roster& roster, const TeamPlayerStats& stats) {
    PlayerTable table(GoalieColumns);
    for (int row = 0; row < RosterRows && !roster[row].isEmpty(); ++row)
        if (const auto* goalie = std::get_if<GoalieStats>(&stats[row]))
            table.add(roster[row].Name, goalieFigures(roster[row], *goalie));
    return table;
}

void PlayerTable::add(const std::string& name, const std::array<double, PlayerTableColumns>& figures) {
    auto& values = values_.emplace_back();
    PlayerTableRow& row = rows_.emplace_back();
    row.Name = name;
    for (int column = 0; column < PlayerTableColumns; ++column) {
        values[column] = wholeNumber(figures[column] * columns_[column].scale);
        row.texts[column] = shownText(values[column], column, columns_[column]);
    }
}

std::vector<int> PlayerTable::valuesOf(int column) const {
    std::vector<int> values;
    for (const auto& row : values_)
        values.push_back(row[column]);
    return values;
}

std::vector<int> PlayerTable::order(int column, bool ascending) const {
    const auto direction = ascending ? Direction::LowestFirst : Direction::HighestFirst;
    return column == NameColumn ? naturalOrder(count(), ascending)
                                : selectionOrder(valuesOf(column), direction);
}

std::vector<PlayerTableRow> PlayerTable::ordered(int column, bool ascending) const {
    std::vector<PlayerTableRow> rows;
    for (const int row : order(column, ascending))
        rows.push_back(rows_[row]);
    return rows;
}

std::pair<std::string, std::string> PlayerTable::leader(int column) const {
    if (count() == 0)
        return {"", "0"};
    const int row = selectionOrder(valuesOf(column), Direction::HighestFirst, 1).front();
    return {rows_[row].Name, rows_[row].texts[column]};
}

} // namespace iceline
