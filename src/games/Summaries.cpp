#include "games/Summaries.h"

#include "league/Numbers.h"
#include "page/PageNames.h"
#include "page/PageText.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace iceline {

namespace {

/// Columns of a window's line for the names before its mark.
constexpr int GoalRoom = 58;
constexpr int PenaltyRoom = 35;
constexpr std::size_t InfractionWidth = 22;

struct StrengthMarks {
    std::string_view window;
    std::string_view page;
};

StrengthMarks marksOf(Strength strength) {
    static constexpr std::array<StrengthMarks, 5> Marks{
        {{" SH2", "SH2"}, {" SH", "SH"}, {"", "&nbsp;"}, {" PP", "PP"}, {" PP2", "PP2"}}};
    return Marks[static_cast<std::size_t>(strength)];
}

struct InfractionText {
    Infraction infraction;
    std::string_view name;
    std::string_view windowMinutes;
    std::string_view pageMinutes;
};

constexpr std::array<InfractionText, 12> InfractionTexts{{
    {Infraction::Boarding, "Boarding", "2:00", "2:00"},
    {Infraction::Charging, "Charging", "2:00", "2:00"},
    {Infraction::Slashing, "Slashing", "2:00", "2:00"},
    {Infraction::Roughing, "Roughing", "2:00", "2:00"},
    {Infraction::CrossChecking, "Cross Checking", "2:00", "2:00"},
    {Infraction::Hooking, "Hooking", "2:00", "2:00"},
    {Infraction::Tripping, "Tripping", "2:00", "2:00"},
    {Infraction::Interference, "Interference", "2:00", "2:00"},
    {Infraction::Holding, "Holding", "2:00", "2:00"},
    {Infraction::Fighting, "Fighting", "5:00", "5:00"},
    {Infraction::FightingStarred, "Fighting *", "5:00", "5:00"},
    {Infraction::FightInstigator, "Fight Instigator", "2:00", "5:00"},
}};

/// The texts of the infraction that a penalty's type byte says, null for a byte that says none.
const InfractionText* infractionText(int typeByte) {
    const auto text = std::ranges::find(InfractionTexts, static_cast<Infraction>(kindOf(typeByte)),
                                        &InfractionText::infraction);
    return text == InfractionTexts.end() ? nullptr : text;
}

std::string periodText(int period) {
    return period >= OvertimePeriod ? "OT" : std::to_string(period);
}

/// Period and time in columns: " 2  9:59", "OT 12:03".
std::string windowTime(int period, int seconds) {
    std::string text = period >= OvertimePeriod ? "OT " : " " + periodText(period) + " ";
    if (seconds / 60 <= 9)
        text += ' ';
    return text + clockText(seconds);
}

std::string windowTeam(const GameSide& side) {
    const std::string_view abbr = TeamAbbr[side.team];
    std::string text = "  ";
    text += abbr;
    if (abbr.size() == 2)
        text += ' ';
    return text;
}

/// The player whose row a summary entry names by its byte; the report's entries name rows of the roster.
const GamePlayerRow& playerOf(const GameSide& side, int byte) {
    return side.players[RosterIndex(byte)];
}

std::string pageName(const GameSide& side, int byte) {
    return shown(playerOf(side, byte).Name);
}

std::string windowName(const GameSide& side, int byte) {
    const GamePlayerRow& player = playerOf(side, byte);
    return player.isEmpty() ? "" : player.Name;
}

std::string blanks(int room) {
    return std::string(static_cast<std::size_t>(std::max(room, 1)), ' ');
}

/// The scorer and after him the assistants, each named by `name`.
std::string namesOf(const ScoringEntry& goal, const GameSide& side,
                    std::string (*name)(const GameSide&, int)) {
    std::string text = name(side, goal.scorer);
    for (const int assistant : {goal.assist1, goal.assist2})
        if (assistant != NoAssist)
            text += ", " + name(side, assistant);
    return text;
}

std::string windowGoal(const GameReport& report, const ScoringEntry& goal) {
    std::string line = windowTime(goal.period, goal.seconds);
    const auto strength = strengthOf(goal.type);
    if (!strength)
        return line;
    const GameSide& side = report.of(sideOf(goal.type));
    const std::string names = namesOf(goal, side, windowName);
    line += windowTeam(side) + "  " + names;
    if (*strength != Strength::Even)
        (line += blanks(GoalRoom - static_cast<int>(characterCount(names)))) += marksOf(*strength).window;
    return line;
}

std::string windowPenalty(const GameReport& report, const PenaltyEntry& penalty) {
    std::string line = windowTime(penalty.period, penalty.seconds);
    const InfractionText* infraction = infractionText(penalty.type);
    if (!infraction)
        return line;
    const GameSide& side = report.of(sideOf(penalty.type));
    const std::string name = windowName(side, penalty.player);
    line += windowTeam(side) + "  " + name + blanks(PenaltyRoom - static_cast<int>(characterCount(name)));
    line += infraction->name;
    line.append(InfractionWidth - infraction->name.size(), ' ');
    line += infraction->windowMinutes;
    return line;
}

std::string timeCells(int period, int seconds) {
    return markup("<td><center>{}</td><td><center>{}</td>", periodText(period), clockText(seconds));
}

std::string goalRow(const GameReport& report, const ScoringEntry& goal) {
    std::string abbr;
    std::string names;
    std::string mark;
    if (const auto strength = strengthOf(goal.type)) {
        const GameSide& side = report.of(sideOf(goal.type));
        abbr = TeamAbbr[side.team];
        names = namesOf(goal, side, pageName);
        mark = marksOf(*strength).page;
    }
    return markup("<tr>{}<td><center>{}</td><td>{}</td><td><center>{}</td></tr>",
                  timeCells(goal.period, goal.seconds), abbr, names, mark);
}

std::string penaltyRow(const GameReport& report, const PenaltyEntry& penalty) {
    std::string abbr;
    std::string name;
    std::string infraction;
    std::string minutes;
    if (const InfractionText* text = infractionText(penalty.type)) {
        const GameSide& side = report.of(sideOf(penalty.type));
        abbr = TeamAbbr[side.team];
        name = pageName(side, penalty.player);
        infraction = text->name;
        minutes = text->pageMinutes;
    }
    return markup("<tr>{}<td><center>{}</td><td>{}</td><td><center>{}</td><td><center>{}</td></tr>",
                  timeCells(penalty.period, penalty.seconds), abbr, name, infraction, minutes);
}

std::string emptyRow(int cells) {
    std::string row = "<tr>";
    for (int cell = 0; cell < cells; ++cell)
        row += "<td>&nbsp;</td>";
    return row + "</tr>";
}

/// A line for each entry, then empty rows up to the height of the other table.
template <class Entry>
std::string rowsOf(const GameReport& report, const std::vector<Entry>& entries, std::size_t otherHeight,
                   std::string (*row)(const GameReport&, const Entry&), int cells) {
    PageText rows;
    for (const Entry& entry : entries)
        rows.line(row(report, entry));
    for (std::size_t filled = entries.size(); filled < otherHeight; ++filled)
        rows.line(emptyRow(cells));
    return rows.text();
}

template <class Entry>
std::string columnText(std::string_view head, const GameReport& report, const std::vector<Entry>& entries,
                       std::string (*line)(const GameReport&, const Entry&)) {
    PageText text;
    text.line(head);
    for (const Entry& entry : entries)
        text.line(line(report, entry));
    return text.text();
}

} // namespace

std::string_view infractionName(int typeByte) {
    const InfractionText* infraction = infractionText(typeByte);
    return infraction ? infraction->name : "";
}

std::string scoringSummaryText(const GameReport& report) {
    return columnText("Per Time Team             Goal/Assist                                     P/S", report,
                      report.goals, windowGoal);
}

std::string penaltySummaryText(const GameReport& report) {
    return columnText("Per Time Team    Player                           Penalty             Minutes", report,
                      report.penalties, windowPenalty);
}

std::string scoringRows(const GameReport& report) {
    return rowsOf(report, report.goals, report.penalties.size(), goalRow, 5);
}

std::string penaltyRows(const GameReport& report) {
    return rowsOf(report, report.penalties, report.goals.size(), penaltyRow, 6);
}

} // namespace iceline
