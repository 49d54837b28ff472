#include "cli/WindowPrinters.h"
#include "games/ReportTables.h"
#include "games/StatExtractor.h"
#include "games/Summaries.h"
#include "league/Numbers.h"

#include <fmt/format.h>

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

std::string scoreLine(const GameReport& game) {
    return fmt::format("{} {}, {} {}  {}\n", TeamName[game.home.team], game.home.stats.Goals,
                       TeamName[game.away.team], game.away.stats.Goals, game.FinalMark);
}

TextTable score(const GameReport& game) {
    TextTable table(
        {{"Home", Align::Left}, {"Home Goals"}, {"Away", Align::Left}, {"Away Goals"}, {"End", Align::Left}});
    table.addRow({std::string(TeamName[game.home.team]), std::to_string(game.home.stats.Goals),
                  std::string(TeamName[game.away.team]), std::to_string(game.away.stats.Goals),
                  game.FinalMark});
    return table;
}

TextTable teamFigures(const GameReport& game) {
    TextTable table({{"", Align::Left, "Figure"},
                     {std::string(TeamAbbr[game.home.team])},
                     {std::string(TeamAbbr[game.away.team])}});
    const auto add = [&](std::string_view caption, const auto& textOf) {
        table.addRow({std::string(caption), textOf(game.home.stats), textOf(game.away.stats)});
    };
    for (const TeamFigureLine& line : TeamFigureLines) {
        const auto first = [&](const TeamGameStats& team) { return line.first.text(team, numberText); };
        const auto second = [&](const TeamGameStats& team) { return line.second->text(team, numberText); };
        const auto both = [&](const TeamGameStats& team) { return first(team) + " / " + second(team); };
        if (!line.second) {
            add(line.caption, first);
        } else if (line.secondCaption.empty()) {
            add(line.caption, both);
        } else {
            add(line.caption, first);
            add(line.secondCaption, second);
        }
    }
    return table;
}

TextTable roster(const GameSide& side) {
    const std::string title(TeamName[side.team]);
    std::vector<TextTable::Column> columns{{title, Align::Left, "Name"}};
    for (const PlayerFigure& figure : PlayerFigures)
        columns.push_back({std::string(figure.caption)});
    TextTable table(std::move(columns), title);
    for (const GamePlayerRow& player : side.players) {
        if (player.isEmpty())
            continue;
        std::vector<std::string> cells{player.Name};
        for (const PlayerFigure& figure : PlayerFigures)
            cells.push_back(std::to_string(player.*figure.figure));
        table.addRow(std::move(cells));
    }
    return table;
}

TextTable stars(const GameReport& game) {
    TextTable table({{"", Align::Left, "Star"}, {"", Align::Left, "Name"}, {"", Align::Left, "Team"}});
    for (std::size_t k = 0; k < StarPlaces.size(); ++k)
        table.addRow({std::string(StarPlaces[k].caption), game.Star[k].Name,
                      std::string(TeamAbbr[game.Star[k].Team])});
    return table;
}

void printSummary(const char* caption, const std::string& columns, Printout& out) {
    std::string lines = columns;
    std::erase(lines, '\r');
    out << "\n" << caption << "\n" << lines;
}

void printReport(const GameReport& game, Printout& out) {
    out.drawing(scoreLine(game), score(game));
    out << "\n" << teamFigures(game) << "\n";
    out.sideBySide(roster(game.home), roster(game.away));
    out << "\n" << stars(game);
}

} // namespace

void printGame(const GameReport& game, Printout& out) {
    printReport(game, out);
    printSummary("Scoring Summary", scoringSummaryText(game), out);
    printSummary("Penalty Summary", penaltySummaryText(game), out);
}

void printStatExtractor(const StatExtractor& window, Printout& out) {
    const StatExtractor::Content& content = window.content();
    out << window.caption() << "\n" << content.FileName << "\n";
    if (content.report) {
        out << "\n";
        printGame(*content.report, out);
    }
}

} // namespace iceline::cli
