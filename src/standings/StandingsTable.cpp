#include "standings/StandingsTable.h"

#include "files/FileError.h"
#include "league/Numbers.h"
#include "store/TeamFiles.h"

#include <cmath>

namespace iceline {

namespace {

/// Fields of a record up to PowerRanking, the last that the table takes.
constexpr std::size_t FieldsForTable = 12;

} // namespace

StandingsTable readStandingsTable(Files& files) {
    StandingsTable table{};
    for (const TeamIndex team : AllLeagueTeams) {
        const TeamRecord record = readTopOfTeamRecord(files, paths::teamFolder(team), FieldsForTable);
        table[team] = {record.Wins,
                       record.Losses,
                       record.Ties,
                       record.Points,
                       record.GP,
                       record.GF,
                       record.GA,
                       scaledFigure(team, record, &TeamRecord::Diff, 1),
                       scaledFigure(team, record, &TeamRecord::PowerRanking, 100)};
    }
    return table;
}

int scaledFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*member, int scale) {
    const double value = std::nearbyint(record.*member * scale);
    using Limits = std::numeric_limits<std::int16_t>;
    if (value >= Limits::min() && value <= Limits::max())
        return static_cast<int>(value);
    const auto fields = fieldsOf<TeamRecord>();
    const auto field =
        std::ranges::find(fields, Field<TeamRecord>::Member(member), &Field<TeamRecord>::member);
    throw FileError::malformed(paths::teamFile(team, PartOfYear::Season, paths::Records), 1,
                               static_cast<int>(field - fields.begin()) + 1, std::string(field->name),
                               numberText(record.*member) + " is more than the standings can hold");
}

} // namespace iceline
