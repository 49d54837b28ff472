#include "cli/WindowPrinters.h"
#include "playoffs/Playoffs.h"
#include "standings/Alignment.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// Widths of a team with its wins, by round.
constexpr std::array<std::size_t, BracketRounds> Widths{27, 5, 5, 5};

std::string teamText(const Playoffs::Content& content, const BracketSlot& slot) {
    const TeamIndex team = content.team(slot.place);
    std::string text(team == BlankTeam ? "---" : slot.round == 0 ? TeamName[team] : TeamAbbr[team]);
    if (slot.round == 0)
        text = std::to_string(slot.seed) + "  " + text;
    const std::string wins = content.wins(slot.place);
    return padded(text, Widths[static_cast<std::size_t>(slot.round)] - wins.size(), Align::Left) + wins;
}

/// What is on a line, counted from 1, between a round and the next: the ends of two teams' lines, the upright
/// that joins them, and in its middle the line of the winner.
std::string joint(std::size_t line, int round) {
    const std::size_t unit = std::size_t{1} << round;
    const std::size_t place = line % (4 * unit);
    const bool endsHere = place == unit || place == 3 * unit;
    if (place == 2 * unit)
        return "   +-- ";
    if (endsHere)
        return " --+   ";
    return place > unit && place < 3 * unit ? "   |   " : "       ";
}

std::string conferenceText(const Playoffs::Content& content, Conference conference) {
    std::string text;
    const auto slots = bracketSlots(conference);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        std::string line;
        for (int round = 0; round < BracketRounds; ++round) {
            line += padded(slots[i].round == round ? teamText(content, slots[i]) : "",
                           Widths[static_cast<std::size_t>(round)], Align::Left);
            if (round < BracketRounds - 1)
                line += joint(i + 1, round);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

/// A team in a series; empty while it is not known.
std::string_view teamName(TeamIndex team) {
    return team == BlankTeam ? "" : TeamName[team];
}

void addSeries(TextTable& table, const Playoffs::Content& content, std::string_view conference, int round,
               SeriesIndex series) {
    std::vector<std::string> cells{std::string(conference), std::to_string(round + 1)};
    for (const SeriesTeam team : {SeriesTeam::A, SeriesTeam::B}) {
        const SeriesPlace place{series, team};
        cells.emplace_back(teamName(content.team(place)));
        cells.push_back(content.wins(place));
    }
    table.addRow(cells);
}

TextTable seriesTable(const Playoffs::Content& content) {
    TextTable table({{"Conference", Align::Left},
                     {"Round"},
                     {"Team", Align::Left},
                     {"Wins"},
                     {"Opponent", Align::Left},
                     {"Opponent Wins"}});
    for (const Conference conference : {Conference::Wales, Conference::Campbell})
        for (const BracketSlot& slot : bracketSlots(conference))
            if (slot.place.team == SeriesTeam::A && slot.place.series != FinalSeries)
                addSeries(table, content, info(conference).name, slot.round, slot.place.series);
    addSeries(table, content, "", BracketRounds - 1, FinalSeries);
    return table;
}

} // namespace

void printPlayoffs(const Playoffs& window, Printout& out) {
    const Playoffs::Content& content = window.content();
    out << "Playoff Tree\n\n";
    out.drawing("EASTERN CONFERENCE\n\n" + conferenceText(content, Conference::Wales) +
                    "\nWESTERN CONFERENCE\n\n" + conferenceText(content, Conference::Campbell),
                seriesTable(content));
    out << "\nStanley Cup Champions: "
        << (content.champion() == BlankTeam ? "---" : TeamName[content.champion()]) << "\n";
}

} // namespace iceline::cli
