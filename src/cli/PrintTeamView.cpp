#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "teams/TeamStats.h"

#include <map>

namespace iceline::cli {

namespace {

/// A column: its head, and the names of the figures that stand in it, parted by a sign.
struct Figures {
    const char* head;
    std::vector<std::string_view> names;
    const char* sign = " / ";
};

/// The figures of a team or coach by the names of their controls.
class FigureTexts {
public:
    explicit FigureTexts(const TeamView& view) {
        for (const ShownFigure& figure : shownFigures(view))
            texts_[figure.name] = figure.text;
    }

    TextTable table(const std::vector<Figures>& columns) const {
        std::vector<TextTable::Column> heads;
        std::vector<std::string> cells;
        for (const Figures& column : columns) {
            heads.push_back({column.head});
            cells.push_back(cell(column));
        }
        TextTable made(heads);
        made.addRow(cells);
        return made;
    }

private:
    std::string cell(const Figures& column) const {
        std::string text;
        for (const std::string_view name : column.names)
            text += (text.empty() ? "" : column.sign) + texts_.at(name);
        return text;
    }

    std::map<std::string_view, std::string> texts_;
};

void printRecords(const FigureTexts& figures, std::ostream& out) {
    out << figures.table({{"Record W - L - T", {"Wins", "Losses", "Ties"}, " - "},
                          {"Pts.", {"Points"}},
                          {"Win%", {"WinPercent"}},
                          {"GP", {"GP"}},
                          {"GF", {"GF"}},
                          {"GA", {"GA"}},
                          {"GFA", {"GFA"}},
                          {"GAA", {"GAA"}},
                          {"Diff", {"Diff"}},
                          {"Pow.Rank", {"PowerRanking"}}})
        << '\n';
    out << figures.table({{"Home W - L - T", {"HW", "HL", "HT"}, " - "},
                          {"Win%", {"HWinPercent"}},
                          {"GP", {"HGP"}},
                          {"GF", {"HGF"}},
                          {"GA", {"HGA"}},
                          {"GFA", {"HGFA"}},
                          {"GAA", {"HGAA"}},
                          {"Diff", {"HomeDiff"}},
                          {"Pow.Rank", {"HomePowerRanking"}}})
        << '\n';
    out << figures.table({{"Away W - L - T", {"AW", "AL", "AT"}, " - "},
                          {"Win%", {"AWinPercent"}},
                          {"GP", {"AGP"}},
                          {"GF", {"AGF"}},
                          {"GA", {"AGA"}},
                          {"GFA", {"AGFA"}},
                          {"GAA", {"AGAA"}},
                          {"Diff", {"AwayDiff"}},
                          {"Pow.Rank", {"AwayPowerRanking"}}})
        << '\n';
    out << figures.table({{"Overtime W - L - T", {"OTW", "OTL", "OTT"}, " - "},
                          {"Win%", {"OTWPct"}},
                          {"GP", {"OTGP"}},
                          {"Last 10", {"L10W", "L10L", "L10T"}, " - "},
                          {"Streak", {"Streak"}},
                          {"Crowd dB", {"ArenaMeter"}},
                          {"League dB", {"LeagueMeter"}}})
        << '\n';
}

void printTotals(const FigureTexts& figures, std::ostream& out) {
    out << "Season Totals\n"
        << figures.table({{"SOG", {"SOG"}},
                          {"S%", {"SOGPct"}},
                          {"SOGA", {"SOGA"}},
                          {"PPG/PPA", {"PPG", "PPA"}},
                          {"PP%", {"PPPct"}},
                          {"Pen/PIM", {"Pen", "PIM"}},
                          {"PenA/PIMA", {"PenA", "PIMA"}}})
        << figures.table({{"PKG/PKO", {"PKG", "PKO"}},
                          {"PK%", {"PKPct"}},
                          {"FOW/FOT", {"FOW", "FOT"}},
                          {"FOW%", {"FOWPct"}},
                          {"ByCks", {"ByCks"}},
                          {"PsC/PsA", {"PassComp", "PassAtt"}},
                          {"PsAcc%", {"PassAcc"}}})
        << '\n';
}

void printAverages(const FigureTexts& figures, std::ostream& out) {
    out << "Season Averages\n"
        << figures.table({{"SOG", {"SOGPG"}},
                          {"SOGA", {"SOGAPG"}},
                          {"PPG/PPA", {"PPGPG", "PPAPG"}},
                          {"Pen/PIM", {"PenPG", "PIMPG"}},
                          {"PenA/PIMA", {"PenAPG", "PIMAPG"}}})
        << figures.table({{"PKG/PKO", {"PKGPG", "PKOPG"}},
                          {"Att.Zone", {"AttZonePG"}},
                          {"FOW/FOT", {"FOWPG", "FOTPG"}},
                          {"ByCks", {"ByCksPG"}},
                          {"PsC/PsA", {"PassCompPG", "PassAttPG"}}});
}

} // namespace

void printTeamView(const TeamView& view, std::ostream& out) {
    const FigureTexts figures(view);
    printRecords(figures, out);
    printTotals(figures, out);
    printAverages(figures, out);
}

void printTeamStats(const TeamStats& window, std::ostream& out) {
    if (!window.content()) {
        printTeamList("Select Your Team Here", out);
        return;
    }
    out << TeamName[window.TeamSelect] << "\n\n";
    printTeamView(*window.content(), out);
}

} // namespace iceline::cli
