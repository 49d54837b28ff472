#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "players/PlayerTable.h"

namespace iceline {

namespace {

constexpr int PositionColumn = 0;
constexpr int NumberColumn = 1;
constexpr int RankingColumn = 2;

/// Whether the power ranking stands on the line of the name or on one of its own.
enum class RankingLine { OfTheName, ItsOwn };

void addCell(PageText& text, std::string_view content) {
    text.add("<td><center>").add(content).add("</center></td>");
}

void addNameCell(PageText& text, const std::string& name, TeamIndex team, PartOfYear part) {
    text.add("<td><a href=\"../").add(part == PartOfYear::Season ? "Profiles/" : "PlayoffProfiles/");
    text.add(TeamAbbr[team]).add("/").add(playerFileName(name)).add(".htm\">").add(name).add("</a></td>");
}

std::string rowText(const PlayerTableRow& row, TeamIndex team, PartOfYear part, RankingLine ranking) {
    PageText text;
    addCell(text, row.texts[PositionColumn]);
    addCell(text, row.texts[NumberColumn]);
    text.line();
    addNameCell(text, row.Name, team, part);
    if (ranking == RankingLine::ItsOwn)
        text.line();
    addCell(text, row.texts[RankingColumn]);
    for (int column = RankingColumn + 1; column < PlayerTableColumns; ++column) {
        text.line();
        addCell(text, row.texts[column]);
    }
    text.line("</tr>").line();
    return text.text();
}

std::vector<std::string> rowTexts(const PlayerTable& table, TeamIndex team, PartOfYear part,
                                  RankingLine ranking) {
    std::vector<std::string> texts;
    for (const PlayerTableRow& row : table.rows())
        texts.push_back(rowText(row, team, part, ranking));
    return texts;
}

} // namespace

std::vector<std::string> skaterRowTexts(const PlayerTable& table, TeamIndex team, PartOfYear part) {
    return rowTexts(table, team, part, RankingLine::OfTheName);
}

std::vector<std::string> goalieRowTexts(const PlayerTable& table, TeamIndex team, PartOfYear part) {
    return rowTexts(table, team, part, RankingLine::ItsOwn);
}

std::string playerFragment(const std::vector<std::string>& rowTexts, const std::vector<int>& order) {
    PageText text;
    int number = 0;
    for (const int row : order) {
        text.add("<tr>");
        addCell(text, std::to_string(++number));
        text.add(rowTexts[row]);
    }
    return text.text();
}

} // namespace iceline
