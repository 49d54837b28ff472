#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "playoffs/Playoffs.h"

#include <bit>

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// Widths of a team with its wins, by round.
constexpr std::array<std::size_t, BracketRounds> Widths{27, 5, 5, 5};

std::string teamText(const Playoffs::Content& content, Conference conference, const BracketSlot& slot) {
    const TeamIndex team = content.team(conference, slot);
    std::string text = team == BlankTeam ? "---" : std::string(TeamAbbr[team]);
    if (slot.round == 0)
        text =
            std::to_string(slot.place + 1) + "  " + std::string(team == BlankTeam ? "---" : TeamName[team]);
    const std::string& wins = content.wins(slot);
    return padded(text, Widths[slot.round] - wins.size(), Align::Left) + wins;
}

/// What stands on a line, counted from 1, between a round and the next: the ends of two teams' lines, the
/// upright that joins them, and in its middle the line of the winner.
std::string joint(int line, int round) {
    const int unit = 1 << round;
    const int place = line % (4 * unit);
    const bool endsHere = place == unit || place == 3 * unit;
    if (place == 2 * unit)
        return "   +-- ";
    if (endsHere)
        return " --+   ";
    return place > unit && place < 3 * unit ? "   |   " : "       ";
}

void printConference(const Playoffs::Content& content, Conference conference, std::ostream& out) {
    const auto slots = bracketSlots(conference);
    for (int i = 0; i < BracketLines; ++i) {
        std::string line;
        for (int round = 0; round < BracketRounds; ++round) {
            line += padded(slots[i].round == round ? teamText(content, conference, slots[i]) : "",
                           Widths[round], Align::Left);
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
        << (content.StanleyCup == BlankTeam ? "---" : TeamName[content.StanleyCup]) << '\n';
}

} // namespace iceline::cli
