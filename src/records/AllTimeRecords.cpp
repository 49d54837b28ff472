#include "records/AllTimeRecords.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "shell/Application.h"

namespace iceline {

namespace {

/// A record of players or goalies: its place in the file, its heading on the page, its caption and controls
/// in the window.
template <class RecordOf>
struct PlayerRow {
    RecordOf record;
    std::string_view heading;
    std::string_view caption;
    std::string_view team;
    std::string_view name;
    std::string_view value;
};

using enum PlayerRecordOf;

constexpr auto PlayerRows = std::to_array<PlayerRow<PlayerRecordOf>>({
    {Goals, "Goals", "Goals in a Game", "PlyrGRecTeam", "PlyrGRecName", "PlyrGinGame"},
    {Assists, "Assists", "Assists in a Game", "PlyrARecTeam", "PlyrARecName", "PlyrAinGame"},
    {Points, "Points", "Points in a Game", "PlyrPtsRecTeam", "PlyrPtsRecName", "PlyrPtsinGame"},
    {PowerPlayGoals, "PP Goals", "PP Goals in a Game", "PlyrPPRecTeam", "PlyrPPRecName", "PlyrPPinGame"},
    {ShorthandedGoals, "SH Goals", "SH Goals in a Game", "PlyrSHRecTeam", "PlyrSHRecName", "PlyrSHinGame"},
    {Shots, "SOG", "SOG in a Game", "PlyrSOGRecTeam", "PlyrSOGRecName", "PlyrSOGinGame"},
    {PenaltyMinutes, "PIM", "PIM in a Game", "PlyrPIMRecTeam", "PlyrPIMRecName", "PlyrPIMinGame"},
});

constexpr auto GoalieRows = std::to_array<PlayerRow<GoalieRecordOf>>({
    {GoalieRecordOf::Saves, "Saves", "Saves in a Game", "GoalieSvRecTeam", "GSavesRecName", "GSavesRec"},
    {GoalieRecordOf::ShutoutSaves, "SOG/Shutout", "Most Shots in a Shutout", "GoalieSSHOTeam",
     "GShotsSHORecName", "GShotsSHORec"},
    {GoalieRecordOf::GoalsAllowed, "Goals Allowed", "Most Goals Allowed", "GoalieGARecTeam", "GGARecName",
     "GGARec"},
    {GoalieRecordOf::ShotsFaced, "SOG Faced", "Most Shots Faced", "GoalieSFRecTeam", "GSFRecName", "GSFRec"},
    {GoalieRecordOf::Assists, "Assists", "Assists in a Game", "GoalieAstRecTeam", "GAstRecName", "GAstRec"},
});

/// A record of teams, and of the coaches whose teams set it.
struct LeagueRow {
    LeagueRecordOf record;
    std::string_view heading;
    std::string_view caption;
    std::string_view team;
    std::string_view teamValue;
    std::string_view coach;
    std::string_view coachValue;
};

constexpr auto LeagueRows = std::to_array<LeagueRow>({
    {LeagueRecordOf::Goals, "Goals", "Goals in a Game", "TeamGoalsRec", "GinGame", "CoachGName", "Label13"},
    {LeagueRecordOf::Shots, "SOG", "Shots in a Game", "TeamShotRec", "SinGame", "CoachSOGName", "Label12"},
    {LeagueRecordOf::BodyChecks, "Body Checks", "Body Checks in a Game", "ByCksRec", "BCinGame",
     "CoachByCkName", "Label11"},
    {LeagueRecordOf::Penalties, "PIM", "Penalties in a Game", "TeamPensRec", "PeninGame", "CoachPenName",
     "Label10"},
    {LeagueRecordOf::PowerPlayGoals, "PP Goals", "PPG in a Game", "PPGRec", "PPGinGame", "CoachPPGName",
     "Label6"},
    {LeagueRecordOf::PowerPlays, "PP Chances", "PP Opportunities", "PPOppRec", "PPOinGame", "CoachPPOName",
     "Label7"},
});

/// On the page penalties are ahead of body checks, unlike in the window.
constexpr std::array<LeagueRecordOf, LeagueRows.size()> PageOrder{
    LeagueRecordOf::Goals,      LeagueRecordOf::Shots,          LeagueRecordOf::Penalties,
    LeagueRecordOf::BodyChecks, LeagueRecordOf::PowerPlayGoals, LeagueRecordOf::PowerPlays};

/// The row of that record in a table that is in the order of the file.
template <class Records, class RecordOf>
const auto& recordOf(const Records& records, RecordOf record) {
    return records[static_cast<std::size_t>(record)];
}

std::string coachName(const CoachRecord& record) {
    return record.Name.value_or("");
}

std::string coachValue(const CoachRecord& record) {
    return record.Value ? numberText(*record.Value) : "";
}

template <class Rows, class Records>
std::vector<ShownRecord> shownPlayers(const Rows& rows, const Records& records) {
    std::vector<ShownRecord> shown;
    for (const auto& row : rows) {
        const PlayerRecord& record = recordOf(records, row.record);
        shown.push_back({row.caption, row.team, row.name, row.value, record.Team, record.Name,
                         std::to_string(record.Value)});
    }
    return shown;
}

std::vector<ShownRecord> shownTeams(const AllTimeLeagueRecords& records) {
    std::vector<ShownRecord> shown;
    for (const LeagueRow& row : LeagueRows) {
        const LeagueRecord& record = recordOf(records, row.record);
        shown.push_back(
            {row.caption, row.team, "", row.teamValue, record.Team, "", std::to_string(record.Value)});
    }
    return shown;
}

std::vector<ShownRecord> shownCoaches(const CoachesLeagueRecords& records) {
    std::vector<ShownRecord> shown;
    for (const LeagueRow& row : LeagueRows) {
        const CoachRecord& record = recordOf(records.pairs, row.record);
        shown.push_back({row.caption, "", row.coach, row.coachValue, std::nullopt, coachName(record),
                         coachValue(record)});
    }
    return shown;
}

std::string headAndLogo(std::string_view heading, TeamIndex team) {
    return markup(
        R"(<tr><th><b>{}</b></th><td><center><img src="./LogoMinis/{}.gif"></img></center></td><td>)",
        heading, TeamAbbr[team]);
}

/// The rows of players or goalies, the last without the end of its line.
template <class Rows, class Records>
std::string playerRows(const Rows& rows, const Records& records) {
    PageText page;
    for (const auto& row : rows) {
        const PlayerRecord& record = recordOf(records, row.record);
        page.add(page.text().empty() ? "" : LineEnd).add(headAndLogo(row.heading, record.Team));
        page.add("&nbsp;{}</td><td><center>{}</center></tr>", shown(record.Name), record.Value);
    }
    return page.text();
}

void addTeamRows(PageText& page, const AllTimeLeagueRecords& records) {
    for (const LeagueRecordOf kind : PageOrder) {
        const LeagueRecord& record = recordOf(records, kind);
        page.line("{}<center>&nbsp;{}</td></tr>",
                  headAndLogo(recordOf(LeagueRows, kind).heading, record.Team), record.Value);
    }
}

void addCoachRows(PageText& page, const CoachesLeagueRecords& records) {
    for (const LeagueRecordOf kind : PageOrder) {
        const CoachRecord& record = recordOf(records.pairs, kind);
        page.line("<tr><th><b>{}</b></th><td><center>&nbsp;{}</center></td><td><center>&nbsp;{}</td></tr>",
                  recordOf(LeagueRows, kind).heading, shown(coachName(record)), coachValue(record));
    }
}

} // namespace

std::array<RecordSection, 4> recordSections(const AllTimeRecords::Content& content) {
    return {{{"Frame1", "Player Records", shownPlayers(PlayerRows, content.players)},
             {"Frame4", "Goalie Records", shownPlayers(GoalieRows, content.goalies)},
             {"Frame2", "Team Records", shownTeams(content.teams)},
             {"Frame3", "Coach Records", shownCoaches(content.coaches)}}};
}

std::string allTimeRecordsPage(const AllTimeRecords::Content& content) {
    PageFrame frame{"Rinkstar - All-Time Records"};
    frame.styleSheet = "styles.css";
    PageText page;
    page.add(frame.text());
    page.line("{}<table border = 1><tr><th colspan = 4><b>Player Records in a Game</b></th></tr>",
              headerImage("Headers/", "AllTimeRecords"));
    page.line(playerRows(PlayerRows, content.players));
    page.line("</table><br/><table border = 1><tr><th colspan = 4><b>Goalie Records in a Game</b></th></tr>");
    page.line("{}</table>", playerRows(GoalieRows, content.goalies));
    page.line("<br/><table border = 1><tr><th colspan = 3><b>Team Records in a Game</b></th></tr>");
    addTeamRows(page, content.teams);
    page.line("<br/><table border = 1><tr><th colspan = 3><b>Coaches' Records in a Game</b></th></tr>");
    addCoachRows(page, content.coaches);
    return page.text();
}

AllTimeRecords::Content readAllTimeRecords(Files& files, PartOfYear part) {
    return {.players = readAllTimePlayerRecords(files, paths::allTimePlayerRecords(part)),
            .goalies = readAllTimeGoalieRecords(files, paths::allTimeGoalieRecords(part)),
            .teams = readAllTimeLeagueRecords(files, paths::allTimeLeagueRecords(part)),
            .coaches = readCoachesLeagueRecords(files, paths::coachesLeagueRecords(part))};
}

void AllTimeRecords::readAgain() {
    content_ = readAllTimeRecords(app_.files(), part_);
}

void AllTimeRecords::Form_Load() {
    readAgain();
    writePage(app_.files(),
              paths::page(part_ == PartOfYear::Season ? "AllTimeRecords.htm" : "PlayoffAllTimeRecords.htm"),
              allTimeRecordsPage(content_));
    changed();
}

} // namespace iceline
