#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "playoffs/Playoffs.h"

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

void printConference(const Playoffs::Content& content, Conference conference, std::ostream& out) {
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
        out << line << '\n';
    }
}

} // namespace

void printPlayoffs(const Playoffs& window, std::ostream& out) {
    const Playoffs::Content& content = window.content();
    out << "Playoff Tree\n\nEASTERN CONFERENCE\n\n";
    printConference(content, Conference::Wales, out);
    out << "\nWESTERN CONFERENCE\n\n";
    printConference(content, Conference::Campbell, out);
    out << "\nStanley Cup Champions: "
        << (content.champion() == BlankTeam ? "---" : TeamName[content.champion()]) << '\n';
}

} // namespace iceline::cli
