#include "history/ImportPreview.h"

#include "games/BookEntry.h"
#include "shell/Application.h"
#include "standings/Standings.h"
#include "store/TeamFiles.h"

#include <algorithm>

namespace iceline {

namespace {

int placeOf(Application& app, TeamIndex team) {
    Standings& standings = Standings::in(app);
    standings.DivisionStandingsUpdate();
    for (const auto& rows : standings.content().divisions)
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i].team == team)
                return static_cast<int>(i) + 1;
    return 0;
}

TeamForm standingOf(Application& app, TeamIndex team) {
    const RecordFolder folder = paths::teamFolder(team) + seasonFolder(app.state.partOfYear());
    return {readTeamRecord(app.files(), folder), readStreak(app.files(), folder), placeOf(app, team)};
}

std::vector<std::string> recordFiles(PartOfYear part) {
    return {paths::allTimePlayerRecords(part), paths::allTimeGoalieRecords(part),
            paths::allTimeLeagueRecords(part)};
}

std::vector<std::string> contentsOf(Application& app, const std::vector<std::string>& paths) {
    std::vector<std::string> contents;
    for (const std::string& path : paths)
        contents.push_back(app.files().read(path));
    return contents;
}

/// The series of the two teams, by the bracket as it would be.
std::string seriesText(const ApplicationState& state, const GameSheet& game) {
    if (!state.PlayoffMode)
        return "";
    for (const PlayoffSeriesRecord& series : state.PlayoffSeries)
        if ((series.TeamA == game.home.team && series.TeamB == game.away.team) ||
            (series.TeamA == game.away.team && series.TeamB == game.home.team))
            return std::string(TeamName[series.TeamA]) + " " + std::to_string(series.WinsA) + ", " +
                   std::string(TeamName[series.TeamB]) + " " + std::to_string(series.WinsB);
    return "";
}

} // namespace

ImportPreview previewImport(Application& app) {
    StatExtractor& window = StatExtractor::in(app);
    const PlayedGame& game = window.readGameInHand();
    ImportPreview preview;
    if (game.refusal) {
        preview.refusal = game.refusal;
        return preview;
    }
    preview.doubt = window.doubtAbout(game);
    const std::vector<std::string> paths = recordFiles(app.state.partOfYear());
    const std::vector<std::string> before = contentsOf(app, paths);
    for (const Side side : {Side::Home, Side::Away}) {
        const TeamIndex team = game.sheet.of(side).team;
        preview.teams.push_back({team, standingOf(app, team), {}});
    }
    preview.refusal = window.tryImport([&] {
        for (TeamOutlook& outlook : preview.teams)
            outlook.after = standingOf(app, outlook.team);
        const std::vector<std::string> after = contentsOf(app, paths);
        for (std::size_t i = 0; i < paths.size(); ++i)
            if (after[i] != before[i])
                preview.files.push_back(paths[i]);
        preview.series = seriesText(app.state, window.gameInHand().sheet);
    });
    Standings::in(app).DivisionStandingsUpdate();
    if (preview.refusal)
        preview.teams.clear();
    return preview;
}

} // namespace iceline
