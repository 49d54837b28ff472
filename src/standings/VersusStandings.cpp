#include "standings/VersusStandings.h"

#include "league/Numbers.h"
#include "league/Selection.h"
#include "standings/StandingsTable.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

/// A team's row: itself, then four columns against Wales and four against Campbell.
constexpr std::size_t ColumnsAgainst = 4;

constexpr std::size_t firstColumn(Conference opponents) {
    return 1 + ColumnsAgainst * static_cast<std::size_t>(opponents);
}

/// Wins, losses and ties against the teams of one conference, as a team's record holds them.
using CountsInRecord = std::array<double TeamRecord::*, 3>;
constexpr CountsInRecord AgainstOwn{&TeamRecord::SameConfW, &TeamRecord::SameConfL, &TeamRecord::SameConfT};
constexpr CountsInRecord AgainstOther{&TeamRecord::OtherConfW, &TeamRecord::OtherConfL,
                                      &TeamRecord::OtherConfT};

SplitRecord splitRecord(TeamIndex team, const TeamRecord& record, const CountsInRecord& counts) {
    const auto count = [&](std::size_t i) { return scaledFigure(team, record, counts[i], 1); };
    SplitRecord split{count(0), count(1), count(2), 0};
    if (const int games = split.wins + split.losses + split.ties; games != 0)
        split.winPercent = wholeNumber(1000.0 * split.wins / games);
    return split;
}

void store(const SplitRecord& record, Conference opponents, VersusTable::value_type& row) {
    const std::array columns{record.wins, record.losses, record.ties, record.winPercent};
    std::ranges::copy(columns, row.begin() + firstColumn(opponents));
}

SplitRecord recordAgainst(Conference opponents, const VersusTable::value_type& row) {
    const auto* const columns = &row[firstColumn(opponents)];
    return {columns[0], columns[1], columns[2], columns[3]};
}

VersusTable readVersusTable(Files& files, Conference conference) {
    VersusTable table{};
    auto row = table.begin();
    for (const TeamIndex team : teamsOf(conference)) {
        const TeamRecord record = readTeamRecord(files, paths::teamFolder(team));
        row->front() = team.number();
        store(splitRecord(team, record, AgainstOwn), conference, *row);
        store(splitRecord(team, record, AgainstOther), otherConference(conference), *row);
        ++row;
    }
    return table;
}

} // namespace

void readVersusTables(Files& files, ApplicationState& state) {
    const VersusTable wales = readVersusTable(files, Conference::Wales);
    const VersusTable campbell = readVersusTable(files, Conference::Campbell);
    state.WalesVersus = wales;
    state.CampbellVersus = campbell;
}

VersusOrder versusOrder(const VersusTable& table, Conference opponents) {
    std::array<int, ConferenceTeams> percentages{};
    std::ranges::transform(table, percentages.begin(),
                           [opponents](const auto& row) { return recordAgainst(opponents, row).winPercent; });
    return selectionOrder(percentages, Direction::HighestFirst);
}

VersusRows versusRows(const VersusTable& table, const VersusOrder& order) {
    VersusRows rows;
    std::ranges::transform(order, rows.begin(), [&table](int row) {
        return VersusRow{
            TeamIndex(table[row].front()),
            {recordAgainst(Conference::Wales, table[row]), recordAgainst(Conference::Campbell, table[row])}};
    });
    return rows;
}

} // namespace iceline
