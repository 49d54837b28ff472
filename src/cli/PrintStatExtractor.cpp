#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "games/ReportTables.h"
#include "games/StatExtractor.h"
#include "games/Summaries.h"
#include "league/Numbers.h"

#include <algorithm>

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

TextTable teamFigures(const GameReport& game) {
    TextTable table({{"", Align::Left},
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
    std::vector<TextTable::Column> columns{{std::string(TeamName[side.team]), Align::Left}};
    for (const PlayerFigure& figure : PlayerFigures)
        columns.push_back({std::string(figure.caption)});
    TextTable table(std::move(columns));
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
    TextTable table({{"", Align::Left}, {"", Align::Left}, {"", Align::Left}});
    for (std::size_t k = 0; k < StarPlaces.size(); ++k)
        table.addRow({std::string(StarPlaces[k].caption), game.Star[k].Name,
                      std::string(TeamAbbr[game.Star[k].Team])});
    return table;
}

void printSummary(const char* caption, const std::string& columns, std::ostream& out) {
    out << '\n' << caption << '\n';
    std::ranges::copy_if(columns, std::ostreambuf_iterator<char>(out), [](char c) { return c != '\r'; });
}

void printReport(const GameReport& game, std::ostream& out) {
    out << TeamName[game.home.team] << ' ' << game.home.stats.Goals << ", " << TeamName[game.away.team] << ' '
        << game.away.stats.Goals << "  " << game.FinalMark << "\n\n"
        << teamFigures(game) << '\n';
    for (const std::string& line : sideBySide(roster(game.home).lines(), roster(game.away).lines(), 4))
        out << line << '\n';
    out << '\n' << stars(game);
}

} // namespace

void printGame(const GameReport& game, std::ostream& out) {
    printReport(game, out);
    printSummary("Scoring Summary", scoringSummaryText(game), out);
    printSummary("Penalty Summary", penaltySummaryText(game), out);
}

void printStatExtractor(const StatExtractor& window, std::ostream& out) {
    const StatExtractor::Content& content = window.content();
    out << window.caption() << '\n' << content.FileName << '\n';
    if (content.report) {
        out << '\n';
        printGame(*content.report, out);
    }
}

} // namespace iceline::cli
