#include "export/DataExport.h"

#include "export/GameTables.h"
#include "files/DiskFiles.h"
#include "files/NativePath.h"
#include "log/HistoryLog.h"
#include "shell/Application.h"
#include "site/LeagueTables.h"
#include "standings/Standings.h"

#include <map>

namespace iceline {

namespace {

using Tables = std::map<std::string, DataTable>; ///< by name

void addGames(Tables& tables, Files& files) {
    const std::vector<Step> steps = readHistory(files);
    GameTables games = gameTables(steps, KnownRosters(steps.empty() ? FileContents() : readBaseline(files)));
    tables.emplace("games", std::move(games.games));
    tables.emplace("goals", std::move(games.goals));
    tables.emplace("penalties", std::move(games.penalties));
}

void addPart(Tables& tables, Files& files, PartOfYear part) {
    PlayerTables players = playerTables(files, part);
    tables.emplace(ofPart(part, "skaters"), std::move(players.skaters));
    tables.emplace(ofPart(part, "goalies"), std::move(players.goalies));
    tables.emplace(ofPart(part, "teams"), teamTable(files, part));
    tables.emplace(ofPart(part, "records"), recordTable(files, part));
}

Tables allTables(Application& app) {
    Files& files = app.files();
    Tables tables;
    addGames(tables, files);
    for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs})
        addPart(tables, files, part);
    Standings::in(app).DivisionStandingsUpdate();
    tables.emplace("standings", standingsTable(files, app.state));
    PlayoffSeriesTable series;
    readPlayoffRecords(files, series);
    tables.emplace("series", seriesTable(series));
    tables.emplace("coaches", coachTable(files));
    return tables;
}

} // namespace

int exportData(Application& app, const std::string& folder) {
    const BusyPointer busy(app.platform());
    const Tables tables = allTables(app);
    DiskFiles disk(toNative(folder));
    disk.makeFolder(folder);
    for (const auto& [name, table] : tables) {
        disk.write(folder + "/" + name + ".csv", table.csv(), Durability::Later);
        disk.write(folder + "/" + name + ".json", table.json(), Durability::Later);
    }
    disk.sync();
    return static_cast<int>(2 * tables.size());
}

} // namespace iceline
