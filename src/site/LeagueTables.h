#pragma once

#include "league/PartOfYear.h"
#include "page/DataTable.h"
#include "shell/ApplicationState.h"

#include <string>
#include <string_view>

namespace iceline {

class Files;

/// The name of a table that a part of the year has one of: "teams", "playoff-teams".
inline std::string ofPart(PartOfYear part, const std::string& name) {
    return part == PartOfYear::Season ? name : "playoff-" + name;
}

/// What the league's files and the standings tell, as tables of data. docs/data-export.md describes their
/// columns. Each throws FileError when a file of the league cannot be read.

/// A team a row. The standings must have been brought up to date.
DataTable standingsTable(Files& files, const ApplicationState& state);
DataTable teamTable(Files& files, PartOfYear part);

/// A coach a row, whether a game of his counts or not.
DataTable coachTable(Files& files);

/// A series a row, from the first round on.
DataTable seriesTable(const PlayoffSeriesTable& series);

/// The all-time records.
DataTable recordTable(Files& files, PartOfYear part);

/// The skaters and the goalies of the rosters, whether they have played or not.
struct PlayerTables {
    DataTable skaters;
    DataTable goalies;
};
PlayerTables playerTables(Files& files, PartOfYear part);

/// A player's page as a link from the site's root.
std::string playerLink(PartOfYear part, TeamIndex team, std::string_view name);

} // namespace iceline
