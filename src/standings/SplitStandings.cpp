#include "standings/SplitStandings.h"

#include "league/Numbers.h"
#include "league/Selection.h"
#include "standings/WholeFigure.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

/// The rows by winning percentage, best first. `recordOf` gives the record of a row that counts.
template <class Rows, class RecordOf>
Rows byWinPercent(const Rows& rows, RecordOf recordOf) {
    std::array<int, std::tuple_size_v<Rows>> percentages{};
    std::ranges::transform(rows, percentages.begin(),
                           [&](const auto& row) { return recordOf(row).WinPercent; });
    Rows ranked;
    std::ranges::transform(selectionOrder(percentages, Direction::HighestFirst), ranked.begin(),
                           [&rows](int row) { return rows[static_cast<std::size_t>(row)]; });
    return ranked;
}

HomeAwayRows byWinPercent(const HomeAwayRows& rows) {
    return byWinPercent(rows, [](const HomeAwayRow& row) { return row.record; });
}

/// Wins, losses and ties against the teams of one conference, as a team's record holds them.
struct CountsInRecord {
    double TeamRecord::*wins;
    double TeamRecord::*losses;
    double TeamRecord::*ties;
};

constexpr CountsInRecord AgainstOwn{&TeamRecord::SameConfW, &TeamRecord::SameConfL, &TeamRecord::SameConfT};
constexpr CountsInRecord AgainstOther{&TeamRecord::OtherConfW, &TeamRecord::OtherConfL,
                                      &TeamRecord::OtherConfT};

SplitRecord splitRecord(TeamIndex team, const TeamRecord& record, const CountsInRecord& counts) {
    SplitRecord split{.Wins = wholeFigure(team, record, counts.wins),
                      .Losses = wholeFigure(team, record, counts.losses),
                      .Ties = wholeFigure(team, record, counts.ties)};
    split.GP = split.Wins + split.Losses + split.Ties;
    if (split.GP != 0)
        split.WinPercent = wholeNumber(1000.0 * split.Wins / split.GP);
    return split;
}

} // namespace

HomeAwayStandings readHomeAwayStandings(Files& files) {
    HomeAwayStandings standings;
    for (const TeamIndex team : AllLeagueTeams) {
        const TeamRecord record = readTeamRecord(files, paths::teamFolder(team));
        standings.home[team] = {team,
                                {record.HW, record.HL, record.HT,
                                 wholeFigure(team, record, &TeamRecord::HWinPercent, 1000), record.HGP}};
        standings.away[team] = {team,
                                {record.AW, record.AL, record.AT,
                                 wholeFigure(team, record, &TeamRecord::AWinPercent, 1000), record.AGP}};
    }
    return {byWinPercent(standings.home), byWinPercent(standings.away)};
}

VersusRows readVersusRows(Files& files, Conference conference) {
    VersusRows rows;
    auto row = rows.begin();
    for (const TeamIndex team : teamsOf(conference)) {
        const TeamRecord record = readTeamRecord(files, paths::teamFolder(team));
        row->team = team;
        row->against[static_cast<std::size_t>(conference)] = splitRecord(team, record, AgainstOwn);
        row->against[static_cast<std::size_t>(otherConference(conference))] =
            splitRecord(team, record, AgainstOther);
        ++row;
    }
    return rows;
}

VersusRows ranked(const VersusRows& rows, Conference opponents) {
    return byWinPercent(rows, [opponents](const VersusRow& row) { return row.recordAgainst(opponents); });
}

} // namespace iceline
