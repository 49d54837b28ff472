#include "desktop/StandingsWindow.h"

#include "desktop/Controls.h"
#include "desktop/HeadLine.h"
#include "desktop/QtPlatform.h"
#include "desktop/TeamRowsPanel.h"
#include "standings/StandingsColumns.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QTabWidget>

namespace iceline::desktop {

namespace {

/// Heights of a row, where there is room and where there are 24 of them.
constexpr int RowHeight = 36;
constexpr int NarrowRowHeight = 24;

/// Prefixes of a division's control arrays.
struct DivisionNames {
    QString figures;
    QString marks;
};

const std::array<DivisionNames, 4>& divisionNames() {
    static const std::array<DivisionNames, 4> names{{
        {QStringLiteral("Northeast"), QStringLiteral("NEClinch")},
        {QStringLiteral("Atlantic"), QStringLiteral("ATLClinch")},
        {QStringLiteral("Central"), QStringLiteral("CENClinch")},
        {QStringLiteral("Pacific"), QStringLiteral("PACClinch")},
    }};
    return names;
}

/// The columns of a table whose control arrays have a prefix before the name of each column.
template <class Columns>
std::vector<FigureColumn> figureColumns(const QString& prefix, const Columns& columns) {
    std::vector<FigureColumn> figures;
    for (const auto& column : columns)
        figures.push_back({prefix + toQt(column.control), toQt(column.caption)});
    return figures;
}

template <class Columns, class Record>
QStringList texts(const Columns& columns, const Record& record) {
    QStringList texts;
    for (const auto& column : columns)
        texts << toQt(column.text(record));
    return texts;
}

template <class Rows>
void showRows(TeamRowsPanel* panel, const Rows& rows) {
    std::size_t place = 0;
    for (const PointsRow& row : rows)
        panel->show(place++, row.team, texts(PointsColumns, row.figures), toQt(row.mark));
}

QLabel* markLegend(QWidget* parent) {
    return headLabel(QStringLiteral("x  play-off place clinched      y  division clinched      "
                                    "z  first place of the conference clinched"),
                     parent, Qt::AlignLeft | Qt::AlignVCenter);
}

QString conferenceTitle(Conference conference) {
    return conference == Conference::Wales ? QStringLiteral("Wales (East)")
                                           : QStringLiteral("Campbell (West)");
}

/// Room for two tables side by side, of equal width.
QGridLayout* twoTables(QWidget* owner) {
    auto* grid = new QGridLayout(owner);
    grid->setHorizontalSpacing(32);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

void addTab(QTabWidget* tabs, QWidget* content, const QString& caption) {
    auto* page = new QWidget(tabs);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(content);
    tabs->addTab(page, caption);
}

} // namespace

StandingsWindow::StandingsWindow(Application& application, WindowId id, Standings& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(page());
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTab1"));
    addTab(tabs, makeDivisionTab(), QStringLiteral("Division Standings"));
    addTab(tabs, makeConferenceTab(), QStringLiteral("Conference Standings"));
    addTab(tabs, makeHomeAwayTab(), QStringLiteral("Home / Away Standings"));
    addTab(tabs, makeVersusTab(), QStringLiteral("vs. Conference Standings"));
    rows->addWidget(tabs, 1);
    rows->addWidget(exitButton("Command2", this), 0, Qt::AlignRight);
    follow(object_);
}

QWidget* StandingsWindow::makeDivisionTab() {
    QGroupBox* box = frame("Frame2", QStringLiteral("Division Standings"), this);
    QGridLayout* grid = twoTables(box);
    constexpr std::array<const char*, 2> LineNames{"Text30", "Text33"};
    const std::array<QString, 2> heads{
        QStringLiteral("Adams Div.          W      L        T  Pts.   GF    GA   GP         "
                       "Norris Div.           W      L       T    Pts.   GF    GA   GP"),
        QStringLiteral("Patrick Div.          W      L       T  Pts.   GF     GA     GP       "
                       "Smythe Div.        W      L       T    Pts.   GF    GA   GP")};
    for (std::size_t line = 0; line < 2; ++line) {
        const int gridLine = 2 * static_cast<int>(line);
        auto* headLine = new HeadLine(LineNames[line], heads[line], box);
        grid->addWidget(headLine, gridLine, 0, 1, 2);
        std::vector<QLabel*> headed;
        for (const std::size_t division : {line, line + 2}) {
            const auto& [figures, marks] = divisionNames()[division];
            std::vector<FigureColumn> columns = figureColumns(figures, PointsColumns);
            for (FigureColumn& column : columns)
                column.head.clear();
            divisions_[division] =
                new TeamRowsPanel({figures, marks, columns}, DivisionTeams, RowHeight, box);
            grid->addWidget(divisions_[division], gridLine + 1, division == line ? 0 : 1);
            const auto labels = divisions_[division]->firstRow();
            headed.insert(headed.end(), labels.begin(), labels.end());
        }
        headLine->setColumns(headed);
    }
    grid->setRowStretch(4, 1);
    grid->addWidget(markLegend(box), 5, 0, 1, 2);
    return box;
}

QWidget* StandingsWindow::makeConferenceTab() {
    QGroupBox* box = frame("Frame3", QStringLiteral("Conference Standings"), this);
    QGridLayout* grid = twoTables(box);
    for (std::size_t i = 0; i < conferences_.size(); ++i) {
        const QString side = i == 0 ? QStringLiteral("East") : QStringLiteral("West");
        conferences_[i] =
            new TeamRowsPanel({side + QStringLiteral("ernConference"),
                               side.toUpper() + QStringLiteral("Clinch"), figureColumns(side, PointsColumns)},
                              ConferenceTeams, RowHeight, box);
        conferences_[i]->setTitle(conferenceTitle(static_cast<Conference>(i)));
        conferences_[i]->setLastPlayoffRow(PlayoffPlaces - 1);
        grid->addWidget(conferences_[i], 0, static_cast<int>(i));
    }
    grid->setRowStretch(1, 1);
    grid->addWidget(markLegend(box), 2, 0, 1, 2);
    return box;
}

QWidget* StandingsWindow::makeHomeAwayTab() {
    QGroupBox* box = frame("HomeAwayStandings", QStringLiteral("Home and Away Standings"), this);
    QGridLayout* grid = twoTables(box);
    grid->setVerticalSpacing(0);
    const auto add = [&](const QString& side, int column) {
        auto* panel =
            new TeamRowsPanel({QStringLiteral("Teams") + side, {}, figureColumns(side, HomeAwayColumns)},
                              LeagueTeams, NarrowRowHeight, box);
        grid->addWidget(panel, 1, column);
        return panel;
    };
    auto* heads = new HeadLine(
        "Text3", QStringLiteral("           HOME RECORDS                      AWAY RECORDS"), box);
    grid->addWidget(heads, 0, 0, 1, 2);
    home_ = add(QStringLiteral("Home"), 0);
    away_ = add(QStringLiteral("Away"), 1);
    heads->setColumns({home_->firstRow().front(), away_->firstRow().front()});
    return box;
}

QWidget* StandingsWindow::makeVersusTab() {
    QGroupBox* box =
        frame("EastVsWestStandings", QStringLiteral("Conference vs. Conference Standings"), this);
    QGridLayout* grid = twoTables(box);
    grid->addWidget(makeVersusPanel(Conference::Wales, box), 0, 0);
    grid->addWidget(makeVersusPanel(Conference::Campbell, box), 0, 1);
    grid->setRowStretch(1, 1);
    QLabel* hint = textLabel(QStringLiteral("Text4"), box);
    hint->setText(QStringLiteral("Click a Box to Sort  --->"));
    versus_.front()->addHint(hint);
    return box;
}

TeamRowsPanel* StandingsWindow::makeVersusPanel(Conference conference, QWidget* parent) {
    const bool wales = conference == Conference::Wales;
    const QString prefix = wales ? QStringLiteral("Evs") : QStringLiteral("WVs");
    std::vector<FigureColumn> figures = figureColumns(prefix + QStringLiteral("East"), VersusColumns);
    for (const FigureColumn& column : figureColumns(prefix + QStringLiteral("West"), VersusColumns))
        figures.push_back(column);
    auto* panel =
        new TeamRowsPanel({wales ? QStringLiteral("TeamsEast") : QStringLiteral("TeamsWest"), {}, figures},
                          ConferenceTeams, RowHeight, parent);
    panel->setTitle(conferenceTitle(conference));
    constexpr int Columns = VersusColumns.size();
    panel->addHeadOver(makeSortHead(conference, Conference::Wales, panel), 0, Columns);
    panel->addHeadOver(makeSortHead(conference, Conference::Campbell, panel), Columns, Columns);
    return versus_[static_cast<std::size_t>(conference)] = panel;
}

SortHead* StandingsWindow::makeSortHead(Conference conference, Conference opponents, QWidget* parent) {
    struct Label {
        QString name;
        void (Standings::*click)();
    };
    static const std::array<std::array<Label, 2>, 2> labels{{
        {{{QStringLiteral("EvE"), &Standings::EvE_Click}, {QStringLiteral("EvW"), &Standings::EvW_Click}}},
        {{{QStringLiteral("WvE"), &Standings::WvE_Click}, {QStringLiteral("WvW"), &Standings::WvW_Click}}},
    }};
    const auto table = static_cast<std::size_t>(conference);
    const auto against = static_cast<std::size_t>(opponents);
    const auto& [name, click] = labels[table][against];
    auto* head = new SortHead(name,
                              opponents == Conference::Wales ? QStringLiteral("vs. Eastern Conf.")
                                                             : QStringLiteral("vs. Western Conf."),
                              parent);
    connect(head, &SortHead::clicked, this, [this, click] { run([this, click] { (object_.*click)(); }); });
    return sortHeads_[table][against] = head;
}

void StandingsWindow::refresh() {
    const Standings::Content& content = object_.content();
    for (std::size_t i = 0; i < divisions_.size(); ++i)
        showRows(divisions_[i], content.divisions[i]);
    for (std::size_t i = 0; i < conferences_.size(); ++i)
        showRows(conferences_[i], content.conferences[i]);
    showHomeAway(content.homeAway);
    showVersus(content);
}

void StandingsWindow::showHomeAway(const HomeAwayStandings& standings) {
    const auto show = [](TeamRowsPanel* panel, const HomeAwayRows& rows) {
        std::size_t place = 0;
        for (const HomeAwayRow& row : rows)
            panel->show(place++, row.team, texts(HomeAwayColumns, row.record));
    };
    show(home_, standings.home);
    show(away_, standings.away);
}

void StandingsWindow::showVersus(const Standings::Content& content) {
    for (std::size_t table = 0; table < versus_.size(); ++table) {
        std::size_t place = 0;
        for (const VersusRow& row : content.versus[table])
            versus_[table]->show(place++, row.team,
                                 texts(VersusColumns, row.recordAgainst(Conference::Wales)) +
                                     texts(VersusColumns, row.recordAgainst(Conference::Campbell)));
        for (std::size_t against = 0; against < 2; ++against)
            sortHeads_[table][against]->mark(
                static_cast<std::size_t>(content.versusRankedBy[table]) == against ? SortMark::Descending
                                                                                   : SortMark::None);
    }
}

} // namespace iceline::desktop
