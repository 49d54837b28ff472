#include "desktop/TeamFiguresPanel.h"

#include "desktop/Controls.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <vector>

namespace iceline::desktop {

namespace {

constexpr int FigureWidth = 58;

/// A cell: its head, and the names of the labels that stand in it, parted by a sign.
struct Cell {
    const char* head;
    std::vector<const char*> names;
    const char* sign = " / ";
};

QWidget* figures(const Cell& cell, QWidget* parent) {
    auto* holder = new QWidget(parent);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addStretch();
    for (const char* name : cell.names) {
        if (name != cell.names.front())
            row->addWidget(headLabel(QLatin1String(cell.sign), holder));
        row->addWidget(figureLabel(QLatin1String(name), holder));
    }
    row->addStretch();
    holder->setMinimumWidth(FigureWidth);
    return holder;
}

/// Rows of cells under their heads; a row that begins with a caption has it in the first column.
struct Line {
    QString caption;
    std::vector<Cell> cells;
};

void fill(QGroupBox* box, const std::vector<Line>& lines, bool headsOnce) {
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(8, 6, 8, 6);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    int row = 0;
    for (const Line& line : lines) {
        const bool withHeads = row == 0 || !headsOnce;
        int column = 0;
        if (!line.caption.isEmpty())
            grid->addWidget(headLabel(line.caption, box, Qt::AlignLeft | Qt::AlignVCenter), row + withHeads,
                            column++);
        for (const Cell& cell : line.cells) {
            if (withHeads)
                grid->addWidget(headLabel(QLatin1String(cell.head), box, Qt::AlignCenter), row, column);
            grid->addWidget(figures(cell, box), row + withHeads, column++);
        }
        row += withHeads ? 2 : 1;
    }
}

std::vector<Cell> locationCells(const char* const (&names)[11]) {
    static constexpr const char* Heads[] = {"Win%", "GP", "GF", "GA", "GFA", "GAA", "Diff", "Power Ranking"};
    std::vector<Cell> cells{{"W - L - T", {names[0], names[1], names[2]}, " - "}};
    for (int i = 0; i < 8; ++i)
        cells.push_back({Heads[i], {names[i + 3]}});
    return cells;
}

} // namespace

TeamFiguresPanel::TeamFiguresPanel(const QString& crowdCaption, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    addRecords();
    addForm();
    addTotals();
    addAverages();
    addCrowd(crowdCaption);
}

void TeamFiguresPanel::addRecords() {
    QGroupBox* box = frame("MainRecords", QStringLiteral("Record"), this);
    fill(box,
         {{QStringLiteral("All games"), locationCells({"Wins", "Losses", "Ties", "WinPercent", "GP", "GF",
                                                       "GA", "GFA", "GAA", "Diff", "PowerRanking"})},
          {QStringLiteral("Home"), locationCells({"HW", "HL", "HT", "HWinPercent", "HGP", "HGF", "HGA",
                                                  "HGFA", "HGAA", "HomeDiff", "HomePowerRanking"})},
          {QStringLiteral("Away"), locationCells({"AW", "AL", "AT", "AWinPercent", "AGP", "AGF", "AGA",
                                                  "AGFA", "AGAA", "AwayDiff", "AwayPowerRanking"})}},
         true);
    grid_->addWidget(box, 0, 0, 1, 2);
}

void TeamFiguresPanel::addForm() {
    QGroupBox* form = frame("FormFrame", QStringLiteral("Points and form"), this);
    fill(form,
         {{QString(),
           {{"Points", {"Points"}}, {"Streak", {"Streak"}}, {"Last 10", {"L10W", "L10L", "L10T"}, " - "}}}},
         true);
    grid_->addWidget(form, 1, 0);
    QGroupBox* overtime = frame("OvertimeFrame", QStringLiteral("Overtime"), this);
    fill(overtime,
         {{QString(), {{"W - L - T", {"OTW", "OTL", "OTT"}, " - "}, {"Win%", {"OTWPct"}}, {"GP", {"OTGP"}}}}},
         true);
    grid_->addWidget(overtime, 1, 1);
}

void TeamFiguresPanel::addTotals() {
    QGroupBox* box = frame("TotalsFrame", QStringLiteral("Season totals (Totals)"), this);
    fill(box,
         {{QString(),
           {{"SOG", {"SOG"}},
            {"Shot%", {"SOGPct"}},
            {"SOGA", {"SOGA"}},
            {"PPG / PPA", {"PPG", "PPA"}},
            {"PP%", {"PPPct"}},
            {"Pen / PIM", {"Pen", "PIM"}},
            {"PenA / PIMA", {"PenA", "PIMA"}}}},
          {QString(),
           {{"PKG / PKO", {"PKG", "PKO"}},
            {"PK%", {"PKPct"}},
            {"FOW / FOT", {"FOW", "FOT"}},
            {"FOW%", {"FOWPct"}},
            {"ByCks", {"ByCks"}},
            {"PassComp / PassAtt", {"PassComp", "PassAtt"}},
            {"PassAcc.%", {"PassAcc"}}}}},
         false);
    grid_->addWidget(box, 2, 0, 1, 2);
}

void TeamFiguresPanel::addAverages() {
    QGroupBox* box = frame("AveragesFrame", QStringLiteral("Season averages (Averages Per Game)"), this);
    fill(box,
         {{QString(),
           {{"SOG", {"SOGPG"}},
            {"SOGA", {"SOGAPG"}},
            {"PPG / PPA", {"PPGPG", "PPAPG"}},
            {"Pen / PIM", {"PenPG", "PIMPG"}},
            {"PenA / PIMA", {"PenAPG", "PIMAPG"}}}},
          {QString(),
           {{"PKG / PKO", {"PKGPG", "PKOPG"}},
            {"Att. Zone", {"AttZonePG"}},
            {"FOW / FOT", {"FOWPG", "FOTPG"}},
            {"ByCks", {"ByCksPG"}},
            {"PassComp / PassAtt", {"PassCompPG", "PassAttPG"}}}}},
         false);
    grid_->addWidget(box, 3, 0, 1, 2);
}

void TeamFiguresPanel::addCrowd(const QString& caption) {
    QGroupBox* box = frame("CrowdFrame", QStringLiteral("Crowd Meter Records:"), this);
    auto* rows = new QVBoxLayout(box);
    QLabel* text17 = headLabel(caption, box, Qt::AlignCenter);
    text17->setObjectName(QStringLiteral("Text17"));
    rows->addWidget(text17);
    auto* meters = new QHBoxLayout;
    meters->addStretch();
    for (const char* name : {"ArenaMeter", "LeagueMeter"}) {
        meters->addSpacing(14);
        meters->addWidget(figureLabel(QLatin1String(name), box));
        meters->addWidget(headLabel(QStringLiteral("dB"), box));
        meters->addSpacing(14);
    }
    meters->addStretch();
    rows->addLayout(meters);
    grid_->addWidget(box, 4, 0, 1, 2);
}

void TeamFiguresPanel::show(const TeamView& view) {
    for (const ShownFigure& figure : shownFigures(view))
        findChild<QLabel*>(toQt(figure.name))->setText(toQt(figure.text));
}

} // namespace iceline::desktop
