#include "standings/PointsStandings.h"

#include "standings/Elimination.h"
#include "standings/WholeFigure.h"
#include "store/TeamFiles.h"

#include <utility>

namespace iceline {

namespace {

/// Fields of a record up to PowerRanking, the last that the table takes.
constexpr std::size_t FieldsForTable = 12;

std::array<TeamIndex, 2> leadersInOrder(const ApplicationState& state, const ConferenceInfo& conference) {
    const TeamIndex first = (state.*info(conference.firstDivision).order).front();
    const TeamIndex second = (state.*info(conference.secondDivision).order).front();
    const LeagueTable& table = state.StandingsTable;
    return table[first].Points <= table[second].Points ? std::array{second, first}
                                                       : std::array{first, second};
}

/// The rows of the teams of an order.
template <std::size_t Teams>
std::array<PointsRow, Teams> rowsOf(const ApplicationState& state,
                                    const std::array<TeamIndex, Teams>& order) {
    std::array<PointsRow, Teams> rows;
    std::ranges::transform(order, rows.begin(), [&state](TeamIndex team) {
        return PointsRow{team, state.StandingsTable[team], state.ClinchMark[team]};
    });
    return rows;
}

} // namespace

LeagueTable readStandingsTable(Files& files) {
    LeagueTable table;
    for (const TeamIndex team : AllLeagueTeams) {
        const TeamRecord record = readTopOfTeamRecord(files, paths::teamFolder(team), FieldsForTable);
        table[team] = {.Wins = record.Wins,
                       .Losses = record.Losses,
                       .Ties = record.Ties,
                       .Points = record.Points,
                       .GP = record.GP,
                       .GF = record.GF,
                       .GA = record.GA,
                       .Difference = wholeFigure(team, record, &TeamRecord::Diff),
                       .PowerRanking = wholeFigure(team, record, &TeamRecord::PowerRanking, 100)};
    }
    return table;
}

void orderDivisions(ApplicationState& state) {
    for (std::size_t division = 0; division < Divisions.size(); ++division) {
        const auto teams = teamsOf(static_cast<Division>(division));
        std::ranges::copy(eliminationOrder(state.StandingsTable, teams),
                          (state.*Divisions[division].order).begin());
    }
}

void seedConferences(ApplicationState& state) {
    for (std::size_t conference = 0; conference < Conferences.size(); ++conference) {
        ConferenceSeeds& seeds = state.*Conferences[conference].seeds;
        const auto leaders = leadersInOrder(state, Conferences[conference]);
        std::vector<TeamIndex> others = teamsOf(static_cast<Conference>(conference));
        for (const TeamIndex leader : leaders)
            std::erase(others, leader);
        const auto place = std::ranges::copy(leaders, seeds.begin()).out;
        std::ranges::copy(eliminationOrder(state.StandingsTable, others), place);
    }
}

std::array<DivisionRows, Divisions.size()> divisionRows(const ApplicationState& state) {
    std::array<DivisionRows, Divisions.size()> rows;
    for (std::size_t division = 0; division < rows.size(); ++division)
        rows[division] = rowsOf(state, state.*Divisions[division].order);
    return rows;
}

std::array<ConferenceRows, Conferences.size()> conferenceRows(const ApplicationState& state) {
    std::array<ConferenceRows, Conferences.size()> rows;
    for (std::size_t conference = 0; conference < rows.size(); ++conference)
        rows[conference] = rowsOf(state, state.*Conferences[conference].seeds);
    return rows;
}

} // namespace iceline
