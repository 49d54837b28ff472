#include "desktop/TeamFiguresPanel.h"

#include "desktop/Controls.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace iceline::desktop {

namespace {

constexpr int FigureWidth = 58;

QLabel* namedHead(const QString& name, const QString& text, QWidget* parent,
                  Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter) {
    QLabel* head = headLabel(text, parent, alignment);
    head->setObjectName(name);
    return head;
}

} // namespace

TeamFiguresPanel::TeamFiguresPanel(const QString& crowdCaption, QWidget* parent) : QWidget(parent) {
    using namespace teamfigures;
    static constexpr TeamColumn Form[] = {inWindow(Points, "Points"), CurrentStreak, LastTenGames};
    const QString totals = QStringLiteral("(Totals)");
    const QString averages = QStringLiteral("(Averages Per Game)");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(makeBox("MainRecords", QStringLiteral("Record"),
                            {{Record, QStringLiteral("All games")},
                             {Home, QStringLiteral("Home")},
                             {Away, QStringLiteral("Away")}},
                            Heads::Once),
                    0, 0, 1, 2);
    grid->addWidget(makeBox("FormFrame", QStringLiteral("Points and form"), {{Form, {}}}, Heads::Once), 1, 0);
    grid->addWidget(makeBox("OvertimeFrame", QStringLiteral("Overtime"), {{Overtime, {}}}, Heads::Once), 1,
                    1);
    grid->addWidget(makeBox("TotalsFrame", QStringLiteral("Season totals"),
                            {{Totals, totals, QStringLiteral("Text13")},
                             {FurtherTotals, totals, QStringLiteral("Text14")}},
                            Heads::OnEveryLine),
                    2, 0, 1, 2);
    grid->addWidget(makeBox("AveragesFrame", QStringLiteral("Season averages"),
                            {{Averages, averages, QStringLiteral("Text2")},
                             {FurtherAverages, averages, QStringLiteral("Text7")}},
                            Heads::OnEveryLine),
                    3, 0, 1, 2);
    grid->addWidget(makeCrowd(crowdCaption), 4, 0, 1, 2);
}

QGroupBox* TeamFiguresPanel::makeBox(const char* name, const QString& caption, const std::vector<Line>& lines,
                                     Heads heads) {
    QGroupBox* box = frame(name, caption, this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(8, 6, 8, 6);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    int row = 0;
    for (const Line& line : lines) {
        const bool withHeads = row == 0 || heads == Heads::OnEveryLine;
        const int figuresRow = withHeads ? row + 1 : row;
        int column = 0;
        if (!line.caption.isEmpty())
            grid->addWidget(namedHead(line.captionName, line.caption, box), figuresRow, column++);
        for (const TeamColumn& each : line.columns) {
            if (withHeads)
                grid->addWidget(
                    namedHead(toQt(each.windowHeadControl), toQt(each.windowHead), box, Qt::AlignCenter), row,
                    column);
            grid->addWidget(makeFigures(each, box), figuresRow, column++);
        }
        row = figuresRow + 1;
    }
    return box;
}

QWidget* TeamFiguresPanel::makeFigures(const TeamColumn& column, QWidget* parent) {
    auto* holder = new QWidget(parent);
    auto* room = new QGridLayout(holder);
    room->setContentsMargins(0, 0, 0, 0);
    room->setColumnMinimumWidth(0, FigureWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    room->addLayout(row, 0, 0);
    row->addStretch();
    for (const TeamFigure& figure : column.shown()) {
        if (row->count() > 1)
            row->addWidget(headLabel(toQt(column.sign), holder));
        figures_.emplace_back(figureLabel(toQt(figure.control), holder), figure);
        row->addWidget(figures_.back().first);
    }
    row->addStretch();
    return holder;
}

QGroupBox* TeamFiguresPanel::makeCrowd(const QString& caption) {
    QGroupBox* box = frame("CrowdFrame", {}, this);
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(
        namedHead(QStringLiteral("Text16"), QStringLiteral("Crowd Meter Records:"), box, Qt::AlignCenter));
    rows->addWidget(namedHead(QStringLiteral("Text17"), caption, box, Qt::AlignCenter));
    auto* meters = new QHBoxLayout;
    meters->addStretch(1);
    QString unit = QStringLiteral("Text15");
    for (const TeamColumn& meter : teamfigures::Crowd) {
        meters->addSpacing(14);
        meters->addWidget(makeFigures(meter, box));
        meters->addWidget(namedHead(unit, QStringLiteral("dB"), box));
        meters->addSpacing(14);
        unit = QStringLiteral("Text18");
    }
    meters->addStretch(1);
    rows->addLayout(meters);
    return box;
}

void TeamFiguresPanel::show(const TeamView& view) {
    for (const auto& [label, figure] : figures_)
        label->setText(toQt(figure.text(view)));
}

} // namespace iceline::desktop
