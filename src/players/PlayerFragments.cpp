#include "players/PlayerFragments.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "players/PlayerPages.h"
#include "players/PlayerTable.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

/// Whether the power ranking is on the line of the name or on one of its own.
enum class RankingLine { OfTheName, ItsOwn };

std::string recordLine(const TeamRecord& record) {
    PageText page;
    page.add("<tr><td><center>");
    for (const double figure : {double(record.Wins), double(record.Losses), double(record.Ties),
                                double(record.Points), record.WinPercent})
        page.add("{}</center></td><td><center>", itemText(figure));
    return page.line("{}</center></td></tr>", itemText(record.GP)).text();
}

std::string leadersText(const std::vector<CategoryLeader>& leaders) {
    PageText page;
    for (const CategoryLeader& leader : leaders) {
        page.line("<tr><th colspan = 2><center><b>{}</th></tr>", leader.heading);
        page.line("<tr><td>{}</td><td><center>{}</center></td></tr>", shown(leader.Name), leader.value);
    }
    return page.text();
}

/// A row after the cell of its number, the same in all orders.
std::string rowText(const PlayerTableRow& row, TeamIndex team, PartOfYear part, RankingLine ranking) {
    PageText page;
    page.line("<td><center>{}</center></td><td><center>{}</center></td>", shown(row.texts[0]), row.texts[1]);
    page.add(R"(<td><a href="../{}/{}.htm">{}</a></td>)", profilesFolder(part, team),
             linked(playerFileName(row.Name)), shown(row.Name));
    if (ranking == RankingLine::ItsOwn)
        page.line();
    for (std::size_t column = ColumnsBeforeName; column < row.texts.size(); ++column) {
        page.add("<td><center>{}</center></td>", row.texts[column]);
        page.line(column + 1 == row.texts.size() ? "</tr>" : "");
    }
    return page.line().text();
}

std::string fragment(const std::vector<std::string>& rowTexts, const std::vector<std::size_t>& order) {
    PageText page;
    int number = 0;
    for (const std::size_t row : order)
        page.add("<tr><td><center>{}</center></td>{}", ++number, rowTexts[row]);
    return page.text();
}

/// Writes the orders of a table, which has `columns` columns and the name.
void writeOrders(Files& files, const std::string& stem, const PlayerTable& table,
                 const std::vector<std::string>& rowTexts, std::size_t columns) {
    const int orders = static_cast<int>(columns) + 1;
    for (const bool ascending : {true, false})
        for (int column = 0; column < orders; ++column)
            writePage(files, stem + std::to_string(ascending ? column + orders : column) + ".php",
                      fragment(rowTexts, table.order(column, ascending)));
}

} // namespace

void writePlayerFragments(Files& files, TeamIndex team, PartOfYear part) {
    const std::string folder = part == PartOfYear::Season ? "PStats/" : "PlayoffPStats/";
    const std::string stem = paths::page(folder + std::string(TeamAbbr[team]));
    const TeamRecord record = readTopOfTeamRecord(files, paths::teamFolder(team) + seasonFolder(part));
    writePage(files, stem + "_records.php", recordLine(record));
    const TeamPlayers players = readTeamPlayers(files, team, part);
    writePage(files, stem + "_leaders.php", leadersText(players.leaders));
    const auto rowTexts = [&](const PlayerTable& table, RankingLine ranking) {
        std::vector<std::string> texts;
        for (const PlayerTableRow& row : table.rows())
            texts.push_back(rowText(row, team, part, ranking));
        return texts;
    };
    writeOrders(files, stem + "_N", players.skaters, rowTexts(players.skaters, RankingLine::OfTheName),
                SkaterColumns.size());
    writeOrders(files, stem + "_G", players.goalies, rowTexts(players.goalies, RankingLine::ItsOwn),
                GoalieColumns.size());
}

} // namespace iceline
