#include "desktop/RankingsWindow.h"

#include "desktop/LeaderGrid.h"
#include "desktop/QtPlatform.h"

#include <QGroupBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

constexpr int PlayerRows = 20;

template <class Columns>
LeaderGridForm playerForm(const char* numbers, const char* pictures, const char* names, const char* heads,
                          const Columns& columns) {
    return {.numbers = numbers,
            .pictures = pictures,
            .names = names,
            .heads = heads,
            .headsAre = columns.size() == 1 ? LeaderHeads::Single : LeaderHeads::Figures,
            .rows = PlayerRows,
            .nameCaption = QStringLiteral("Name"),
            .columns = gridColumns(columns)};
}

/// A page of the tabs: the frame with its title, which is a label of its own, and the table.
QGroupBox* tabPage(const char* frameName, const QString& caption, LeaderGrid* grid,
                   const char* title = nullptr, const char* prompt = nullptr) {
    QGroupBox* box = frame(frameName, caption, nullptr);
    auto* rows = new QVBoxLayout(box);
    rows->setContentsMargins(8, 4, 8, 4);
    auto* head = new QHBoxLayout;
    if (title) {
        QLabel* label = textLabel(QLatin1String(title), box);
        label->setText(caption.toUpper());
        label->setProperty("role", QStringLiteral("title"));
        head->addWidget(label);
    }
    head->addStretch();
    if (prompt) {
        QLabel* label = headLabel(QStringLiteral("Click a Box to Sort  --->"), box);
        label->setObjectName(QLatin1String(prompt));
        head->addWidget(label);
    }
    rows->addLayout(head);
    rows->addWidget(grid, 1);
    return box;
}

QTabWidget* tabStrip(const char* name, QWidget* parent) {
    auto* tabs = new QTabWidget(parent);
    tabs->setObjectName(QLatin1String(name));
    tabs->setDocumentMode(true);
    return tabs;
}

void showTable(LeaderGrid& grid, const Rankings::Table& table) {
    grid.show(table.rows, table.sort);
}

} // namespace

RankingsWindow::RankingsWindow(Application& application, WindowId id, Rankings& object)
    : LeagueWindow(application, id), object_(object) {
    teams_ = new LeaderGrid(
        teamLeaderForm(), [this](int head) { sort([&] { object_.tmLeadersCol_Click(head); }); }, this);
    QTabWidget* tabs = tabStrip("SSTab1", this);
    tabs->addTab(makeLeagueLeaders(), QStringLiteral("League Leaders"));
    tabs->addTab(tabPage("Frame3", QStringLiteral("Team League Leaders"), teams_),
                 QStringLiteral("Team Leaders"));
    auto* rows = new QVBoxLayout(page());
    rows->setContentsMargins(10, 8, 10, 8);
    rows->addWidget(tabs);
    rows->addWidget(exitButton("Command2", this), 0, Qt::AlignRight);
    follow(object_);
}

QWidget* RankingsWindow::makeLeagueLeaders() {
    players_ = new LeaderGrid(
        playerForm("Text1", "LeagueLeaderTeam", "LeagueLeaderName", "lColN", PlayerLeaderColumns),
        [this](int head) { sort([&] { object_.lColN_Click(head); }); }, this);
    goalies_ = new LeaderGrid(
        playerForm("Text2", "LeagueLeaderTeam2", "LeagueLeaderGName", "lColG", GoalieLeaderColumns),
        [this](int head) { sort([&] { object_.lColG_Click(head); }); }, this);
    stars_ = new LeaderGrid(
        playerForm("Text6", "LL3StarTeam", "LL3StarName", "ThreeStarSort", StarLeaderColumns),
        [this](int) { sort([&] { object_.ThreeStarSort_Click(); }); }, this);
    stars_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    QTabWidget* tabs = tabStrip("SSTab2", this);
    tabs->addTab(tabPage("Frame1", QStringLiteral("Player League Leaders"), players_, "Text9", "Text4"),
                 QStringLiteral("Player League Leaders"));
    tabs->addTab(tabPage("Frame2", QStringLiteral("Goalie League Leaders"), goalies_, "Text8", "Text5"),
                 QStringLiteral("Goalie League Leaders"));
    tabs->addTab(tabPage("ThreeStarRankings", QStringLiteral("Three Star Award Leaders"), stars_, "Text7"),
                 QStringLiteral("Three Star Award Rankings"));
    return tabs;
}

void RankingsWindow::refresh() {
    const Rankings::Content& content = object_.content();
    setWindowTitle(toQt(content.title));
    showTable(*players_, content.players);
    showTable(*goalies_, content.goalies);
    showTable(*stars_, content.stars);
    showTable(*teams_, content.teams);
}

} // namespace iceline::desktop
