#include "history/ImportPreview.h"

#include "games/BookEntry.h"
#include "records/AllTimeRecords.h"
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

/// "Player Records, Goals in a Game: Ann Smith (BOS) 5".
std::string textOf(const RecordSection& section, const ShownRecord& record) {
    std::string text = std::string(section.caption) + ", " + std::string(record.caption) + ":";
    if (!record.name.empty())
        text += " " + record.name;
    if (record.team)
        text += " (" + std::string(TeamAbbr[*record.team]) + ")";
    return text + " " + record.value;
}

/// The records of the league as they are now.
std::vector<std::string> recordsOf(Application& app) {
    std::vector<std::string> texts;
    for (const RecordSection& section :
         recordSections(readAllTimeRecords(app.files(), app.state.partOfYear())))
        for (const ShownRecord& record : section.records)
            texts.push_back(textOf(section, record));
    return texts;
}

std::string textOf(const TeamForm& form) {
    const TeamRecord& record = form.record;
    std::string text = std::to_string(record.Wins) + "-" + std::to_string(record.Losses) + "-" +
                       std::to_string(record.Ties) + ", " + std::to_string(record.Points) +
                       " points, place " + std::to_string(form.place);
    if (form.streak.StreakCount > 0)
        text += ", streak " + form.streak.StreakLetter + std::to_string(form.streak.StreakCount);
    return text;
}

/// The series of the two teams, by the bracket as it would be.
std::string seriesText(const ApplicationState& state, const GameSheet& game) {
    if (!state.PlayoffMode)
        return "";
    for (const PlayoffSeriesRecord& series : state.PlayoffSeries)
        if ((series.TeamA == game.home.team && series.TeamB == game.away.team) ||
            (series.TeamA == game.away.team && series.TeamB == game.home.team))
            return scoreText(series.TeamA, series.WinsA, series.TeamB, series.WinsB);
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
    const std::vector<std::string> before = recordsOf(app);
    for (const Side side : {Side::Home, Side::Away}) {
        const TeamIndex team = game.sheet.of(side).team;
        preview.teams.push_back({team, standingOf(app, team), {}});
    }
    preview.refusal = window.tryImport([&] {
        for (TeamOutlook& outlook : preview.teams)
            outlook.after = standingOf(app, outlook.team);
        for (const std::string& record : recordsOf(app))
            if (std::ranges::find(before, record) == before.end())
                preview.records.push_back(record);
        preview.series = seriesText(app.state, window.gameInHand().sheet);
    });
    Standings::in(app).DivisionStandingsUpdate();
    if (preview.refusal)
        preview.teams.clear();
    return preview;
}

std::vector<std::string> linesOf(const ImportPreview& preview) {
    if (preview.refusal)
        return {*preview.refusal};
    std::vector<std::string> lines;
    for (const TeamOutlook& team : preview.teams)
        lines.push_back(std::string(TeamName[team.team]) + ": " + textOf(team.before) + " -> " +
                        textOf(team.after));
    if (!preview.series.empty())
        lines.push_back("Series: " + preview.series);
    for (const std::string& record : preview.records)
        lines.push_back("A record falls: " + record);
    return lines;
}

} // namespace iceline
