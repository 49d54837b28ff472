#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "games/StatExtractor.h"

#include <algorithm>

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

std::string pair(int made, int tried) {
    return std::to_string(made) + " / " + std::to_string(tried);
}

TextTable teamFigures(const GameReport& game) {
    TextTable table({{"", Align::Left},
                     {std::string(TeamAbbr[game.home.team])},
                     {std::string(TeamAbbr[game.away.team])}});
    const TeamGameStats& home = game.home.stats;
    const TeamGameStats& away = game.away.stats;
    const auto number = [&](const char* caption, int TeamGameStats::*figure) {
        table.addRow({caption, std::to_string(home.*figure), std::to_string(away.*figure)});
    };
    const auto text = [&](const char* caption, std::string TeamGameStats::*figure) {
        table.addRow({caption, home.*figure, away.*figure});
    };
    number("Goals", &TeamGameStats::Goals);
    number("Shots", &TeamGameStats::Shots);
    text("Shooting Pct.%", &TeamGameStats::ShootingPct);
    table.addRow({"PPG / PPA", pair(home.PPG, home.PPA), pair(away.PPG, away.PPA)});
    number("Penalties", &TeamGameStats::Penalties);
    number("Penalty Minutes", &TeamGameStats::PenM);
    number("Faceoffs Won", &TeamGameStats::FaceoffsWon);
    text("Faceoff Win %", &TeamGameStats::FaceWinPct);
    number("Body Checks", &TeamGameStats::BodyChecks);
    text("Attacking Zone", &TeamGameStats::AttackZoneText);
    table.addRow(
        {"Passes / Pass Att.", pair(home.PassComp, home.PassAtt), pair(away.PassComp, away.PassAtt)});
    text("Pass Accuracy %", &TeamGameStats::PassAcc);
    return table;
}

TextTable roster(const GameSide& side) {
    TextTable table(
        {{std::string(TeamName[side.team]), Align::Left}, {"G"}, {"A"}, {"Pts."}, {"SOG"}, {"PIM"}});
    for (const GamePlayerRow& player : side.players)
        if (!player.isEmpty())
            table.addRow({player.Name, std::to_string(player.G), std::to_string(player.A),
                          std::to_string(player.Pts), std::to_string(player.SOG),
                          std::to_string(player.PIM)});
    return table;
}

TextTable stars(const GameReport& game) {
    TextTable table({{"", Align::Left}, {"", Align::Left}, {"", Align::Left}});
    constexpr std::array Captions{"1st Star:", "2nd Star:", "3rd Star:"};
    for (std::size_t i = 0; i < Captions.size(); ++i)
        table.addRow({Captions[i], game.Star[i].Name, std::string(TeamAbbr[game.Star[i].Team])});
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

void printGame(const StatExtractor& window, std::ostream& out) {
    const StatExtractor::Content& content = window.content();
    printReport(*content.report, out);
    printSummary("Scoring Summary", content.ScoringSummary, out);
    printSummary("Penalty Summary", content.PenaltySummary, out);
}

void printStatExtractor(const StatExtractor& window, std::ostream& out) {
    const StatExtractor::Content& content = window.content();
    out << window.caption() << '\n' << content.FileName << '\n';
    if (content.report) {
        out << '\n';
        printGame(window, out);
    }
}

} // namespace iceline::cli
