#include "records/AllTimeRecords.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "shell/Application.h"

#include <array>

namespace iceline {

namespace {

/// Controls and captions of a record in the window.
struct RecordControls {
    std::string_view caption;
    std::string_view team;
    std::string_view name;
    std::string_view value;
};

constexpr std::array<RecordControls, 7> PlayerControls{{
    {"Goals in a Game", "PlyrGRecTeam", "PlyrGRecName", "PlyrGinGame"},
    {"Assists in a Game", "PlyrARecTeam", "PlyrARecName", "PlyrAinGame"},
    {"Points in a Game", "PlyrPtsRecTeam", "PlyrPtsRecName", "PlyrPtsinGame"},
    {"PP Goals in a Game", "PlyrPPRecTeam", "PlyrPPRecName", "PlyrPPinGame"},
    {"SH Goals in a Game", "PlyrSHRecTeam", "PlyrSHRecName", "PlyrSHinGame"},
    {"SOG in a Game", "PlyrSOGRecTeam", "PlyrSOGRecName", "PlyrSOGinGame"},
    {"PIM in a Game", "PlyrPIMRecTeam", "PlyrPIMRecName", "PlyrPIMinGame"},
}};

constexpr std::array<RecordControls, 5> GoalieControls{{
    {"Saves in a Game", "GoalieSvRecTeam", "GSavesRecName", "GSavesRec"},
    {"Most Shots in a Shutout", "GoalieSSHOTeam", "GShotsSHORecName", "GShotsSHORec"},
    {"Most Goals Allowed", "GoalieGARecTeam", "GGARecName", "GGARec"},
    {"Most Shots Faced", "GoalieSFRecTeam", "GSFRecName", "GSFRec"},
    {"Assists in a Game", "GoalieAstRecTeam", "GAstRecName", "GAstRec"},
}};

constexpr std::array<RecordControls, 6> TeamControls{{
    {"Goals in a Game", "TeamGoalsRec", "", "GinGame"},
    {"Shots in a Game", "TeamShotRec", "", "SinGame"},
    {"Body Checks in a Game", "ByCksRec", "", "BCinGame"},
    {"Penalties in a Game", "TeamPensRec", "", "PeninGame"},
    {"PPG in a Game", "PPGRec", "", "PPGinGame"},
    {"PP Opportunities", "PPOppRec", "", "PPOinGame"},
}};

constexpr std::array<RecordControls, 6> CoachControls{{
    {"Goals in a Game", "", "CoachGName", "Label13"},
    {"Shots in a Game", "", "CoachSOGName", "Label12"},
    {"Body Checks in a Game", "", "CoachByCkName", "Label11"},
    {"Penalties in a Game", "", "CoachPenName", "Label10"},
    {"PPG in a Game", "", "CoachPPGName", "Label6"},
    {"PP Opportunities", "", "CoachPPOName", "Label7"},
}};

constexpr std::array<std::string_view, 7> PlayerHeadings{"Goals",    "Assists", "Points", "PP Goals",
                                                         "SH Goals", "SOG",     "PIM"};
constexpr std::array<std::string_view, 5> GoalieHeadings{"Saves", "SOG/Shutout", "Goals Allowed", "SOG Faced",
                                                         "Assists"};

/// A row of the page's team and coach tables; penalties stand there ahead of body checks.
struct LeagueHeading {
    std::string_view heading;
    LeagueRecordOf record;
};

constexpr std::array<LeagueHeading, 6> LeagueHeadings{{
    {"Goals", LeagueRecordOf::Goals},
    {"SOG", LeagueRecordOf::Shots},
    {"PIM", LeagueRecordOf::Penalties},
    {"Body Checks", LeagueRecordOf::BodyChecks},
    {"PP Goals", LeagueRecordOf::PowerPlayGoals},
    {"PP Chances", LeagueRecordOf::PowerPlays},
}};

std::string coachValue(const CoachRecord& record) {
    return record.Value ? numberText(*record.Value) : "";
}

template <class Controls, class Records>
std::vector<ShownRecord> shownPlayers(const Controls& controls, const Records& records) {
    std::vector<ShownRecord> shown;
    for (std::size_t i = 0; i < controls.size(); ++i)
        shown.push_back({controls[i].caption, controls[i].team, controls[i].name, controls[i].value,
                         records[i].Team, records[i].Name, std::to_string(records[i].Value)});
    return shown;
}

std::string opening(std::string_view heading, TeamIndex team) {
    std::string row = "<tr><th><b>";
    row += heading;
    row += "</b></th><td><center><img src=\"./LogoMinis/";
    row += TeamAbbr[team];
    return row + ".gif\"></img></center></td><td>";
}

/// `closing` stands behind the last row.
template <class Headings, class Records>
void addPlayerRows(PageText& page, const Headings& headings, const Records& records,
                   std::string_view closing = "") {
    for (std::size_t i = 0; i < headings.size(); ++i) {
        page.add(opening(headings[i], records[i].Team) + "&nbsp;" + records[i].Name + "</td><td><center>" +
                 std::to_string(records[i].Value) + "</center></tr>");
        page.line(i + 1 == headings.size() ? closing : "");
    }
}

void addTeamRows(PageText& page, const AllTimeLeagueRecords& records) {
    for (const LeagueHeading& row : LeagueHeadings) {
        const LeagueRecord& record = records[static_cast<std::size_t>(row.record)];
        page.line(opening(row.heading, record.Team) + "<center>&nbsp;" + std::to_string(record.Value) +
                  "</td></tr>");
    }
}

void addCoachRows(PageText& page, const CoachesLeagueRecords& records) {
    for (const LeagueHeading& row : LeagueHeadings) {
        const CoachRecord& record = records.pairs[static_cast<std::size_t>(row.record)];
        page.line("<tr><th><b>" + std::string(row.heading) + "</b></th><td><center>&nbsp;" +
                  record.Name.value_or("") + "</center></td><td><center>&nbsp;" + coachValue(record) +
                  "</td></tr>");
    }
}

} // namespace

std::vector<ShownRecord> shownPlayerRecords(const AllTimeRecords::Content& content) {
    return shownPlayers(PlayerControls, content.players);
}

std::vector<ShownRecord> shownGoalieRecords(const AllTimeRecords::Content& content) {
    return shownPlayers(GoalieControls, content.goalies);
}

std::vector<ShownRecord> shownTeamRecords(const AllTimeRecords::Content& content) {
    std::vector<ShownRecord> shown;
    for (std::size_t i = 0; i < TeamControls.size(); ++i)
        shown.push_back({TeamControls[i].caption, TeamControls[i].team, "", TeamControls[i].value,
                         content.teams[i].Team, "", std::to_string(content.teams[i].Value)});
    return shown;
}

std::vector<ShownRecord> shownCoachRecords(const AllTimeRecords::Content& content) {
    std::vector<ShownRecord> shown;
    for (std::size_t i = 0; i < CoachControls.size(); ++i)
        shown.push_back({CoachControls[i].caption, "", CoachControls[i].name, CoachControls[i].value,
                         std::nullopt, content.coaches.pairs[i].Name.value_or(""),
                         coachValue(content.coaches.pairs[i])});
    return shown;
}

std::string allTimeRecordsPage(const AllTimeRecords::Content& content) {
    PageFrame frame{"Rinkstar - All-Time Records"};
    frame.styleSheet = "styles.css";
    PageText page;
    page.add(frame.text());
    page.line(headerImage("Headers/", "AllTimeRecords") +
              "<table border = 1><tr><th colspan = 4><b>Player Records in a Game</b></th></tr>");
    addPlayerRows(page, PlayerHeadings, content.players);
    page.line("</table><br/><table border = 1><tr><th colspan = 4><b>Goalie Records in a Game</b></th></tr>");
    addPlayerRows(page, GoalieHeadings, content.goalies, "</table>");
    page.line("<br/><table border = 1><tr><th colspan = 3><b>Team Records in a Game</b></th></tr>");
    addTeamRows(page, content.teams);
    page.line("<br/><table border = 1><tr><th colspan = 3><b>Coaches' Records in a Game</b></th></tr>");
    addCoachRows(page, content.coaches);
    return page.text();
}

void AllTimeRecords::Form_Load() {
    Files& files = app_.files();
    content_.players = readAllTimePlayerRecords(files, paths::allTimePlayerRecords(part_));
    content_.goalies = readAllTimeGoalieRecords(files, paths::allTimeGoalieRecords(part_));
    content_.teams = readAllTimeLeagueRecords(files, paths::allTimeLeagueRecords(part_));
    content_.coaches = readCoachesLeagueRecords(files, paths::coachesLeagueRecords(part_));
    writePage(files,
              paths::page(part_ == PartOfYear::Season ? "AllTimeRecords.htm" : "PlayoffAllTimeRecords.htm"),
              allTimeRecordsPage(content_));
    changed();
}

} // namespace iceline
