#include "site/PageFrame.h"
#include "site/PlayerNames.h"
#include "views/PlayerTable.h"

namespace iceline {

namespace {

constexpr int PositionColumn = 0;
constexpr int NumberColumn = 1;
constexpr int RankingColumn = 2;

/// Whether the power ranking stands on the line of the name or on one of its own.
enum class RankingLine { OfTheName, ItsOwn };

std::string cell(const std::string& text) {
    return "<td><center>" + text + "</center></td>";
}

std::string nameCell(const std::string& name, TeamIndex team, PartOfYear part) {
    const std::string folder = part == PartOfYear::Season ? "Profiles" : "PlayoffProfiles";
    return "<td><a href=\"../" + folder + "/" + std::string(TeamAbbr[team]) + "/" + playerFileName(name) +
           ".htm\">" + name + "</a></td>";
}

std::string fragment(const std::vector<PlayerTableRow>& rows, TeamIndex team, PartOfYear part,
                     RankingLine ranking) {
    PageText text;
    int number = 0;
    for (const PlayerTableRow& row : rows) {
        text.line("<tr>" + cell(std::to_string(++number)) + cell(row.texts[PositionColumn]) +
                  cell(row.texts[NumberColumn]));
        text.add(nameCell(row.Name, team, part));
        if (ranking == RankingLine::ItsOwn)
            text.line();
        text.line(cell(row.texts[RankingColumn]));
        for (int column = RankingColumn + 1; column < PlayerTableColumns; ++column)
            text.line(cell(row.texts[column]) + (column + 1 == PlayerTableColumns ? "</tr>" : ""));
        text.line();
    }
    return text.text();
}

} // namespace

std::string skaterFragment(const std::vector<PlayerTableRow>& rows, TeamIndex team, PartOfYear part) {
    return fragment(rows, team, part, RankingLine::OfTheName);
}

std::string goalieFragment(const std::vector<PlayerTableRow>& rows, TeamIndex team, PartOfYear part) {
    return fragment(rows, team, part, RankingLine::ItsOwn);
}

} // namespace iceline
