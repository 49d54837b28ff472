#include "desktop/PlayerStatsWindow.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

constexpr int SkaterRows = 23;
constexpr int GoalieRows = 4;

/// Headings of the leaders in the window, with the labels of their figures.
struct LeaderCaption {
    const char* heading;
    const char* text;
    const char* control;
};

constexpr LeaderCaption LeaderCaptions[] = {
    {"Text4", "Goals", "PlayerLeaderG"},
    {"Text5", "Assists", "PlayerLeaderA"},
    {"Text6", "Points", "PlayerLeaderPts"},
    {"Text11", "Points Per Game", "PlayerLeaderPPG"},
    {"Text7", "Power Ranking", "PlayerLeaderPR"},
    {"Text8", "Penalty Minutes", "PlayerLeaderPIM"},
    {"Text9", "PP Goals", "PlayerLeaderPP"},
    {"Text10", "SH Goals", "PlayerLeaderSH"},
    {"Text13", "Shots on Goal", "PlayerLeaderSOG"},
    {"Text12", "Shot %", "PlayerLeaderSPct"},
};

/// Where the name stands among the columns as they are shown: behind position and number.
constexpr int ShownNameColumn = 2;

int shownColumn(int column) {
    return column == NameColumn ? ShownNameColumn : column < ShownNameColumn ? column : column + 1;
}

} // namespace

PlayerStatsWindow::PlayerStatsWindow(Application& application, WindowId id, PlayerStats& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(makeHead());
    auto* columns = new QHBoxLayout;
    auto* tables = new QVBoxLayout;
    tables->addWidget(makeTable(skaters_, "Frame1", QStringLiteral("Forwards / Defensemen"), "PlayerStats",
                                skaterColumns(), SkaterRows, &PlayerStats::PlayerStatsN_Click));
    tables->addWidget(makeTable(goalies_, "Frame2", QStringLiteral("Goalies"), "GPlayerStats",
                                goalieColumns(), GoalieRows, &PlayerStats::GPlayerStatsN_Click));
    tables->addStretch();
    columns->addLayout(tables, 1);
    columns->addWidget(makeLeaders());
    rows->addLayout(columns);
    follow(object_);
}

QLayout* PlayerStatsWindow::makeHead() {
    auto* row = new QHBoxLayout;
    QLabel* title = textLabel(QStringLiteral("Text1"), this);
    title->setText(id() == WindowId::PlayerStats ? QStringLiteral("PLAYER STATS")
                                                 : QStringLiteral("PLAYOFF PLAYER STATS"));
    title->setProperty("role", QStringLiteral("title"));
    row->addWidget(title);
    teams_ = teamList("PlayersTeamSelect", QStringLiteral("Select Team Here"), this);
    connect(teams_, &QComboBox::activated, this, [this](int index) {
        run([this, index] {
            object_.PlayersTeamSelect = index;
            object_.PlayersTeamSelect_Click();
        });
    });
    row->addWidget(teams_);
    row->addStretch();
    const auto addPicture = [&](const char* name) {
        QLabel* picture = pictureLabel(QLatin1String(name), this);
        row->addWidget(picture);
        return picture;
    };
    logo_ = addPicture("PlayersTeamLogo");
    name_ = addPicture("PlayersTeamName");
    logo2_ = addPicture("PlayersTeamLogo2");
    row->addStretch();
    row->addWidget(exitButton("Command2", this));
    return row;
}

QGroupBox* PlayerStatsWindow::makeTable(Table& table, const char* frameName, const QString& caption,
                                        const char* arrayStem, std::span<const PlayerColumn> columns,
                                        int rows, void (PlayerStats::*click)(int)) {
    QGroupBox* box = frame(frameName, caption, this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(6, 2, 6, 2);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(0);
    const QString stem = QLatin1String(arrayStem);
    for (int row = 0; row < rows; ++row)
        grid->addWidget(headLabel(QString::number(row + 1), box), row + 1, 0);
    for (int column = 0; column <= NameColumn; ++column) {
        const bool isName = column == NameColumn;
        const QString head = isName ? QStringLiteral("Name") : toQt(columns[column].caption);
        const QString control = isName ? stem + QStringLiteral("Name") : toQt(columns[column].control);
        auto* button = new SortHead(element((stem + QLatin1Char('N')).toLatin1(), column), head, box);
        connect(button, &QPushButton::clicked, this,
                [this, click, column] { run([this, click, column] { (object_.*click)(column); }); });
        table.heads.push_back(button);
        grid->addWidget(button, 0, shownColumn(column) + 1);
        auto& labels = table.columns.emplace_back();
        for (int row = 0; row < rows; ++row) {
            const QString name = element(control.toLatin1(), row);
            labels.push_back(isName ? textLabel(name, box) : figureLabel(name, box));
            grid->addWidget(labels.back(), row + 1, shownColumn(column) + 1);
        }
    }
    grid->setColumnMinimumWidth(ShownNameColumn + 1, 170);
    grid->setColumnStretch(ShownNameColumn + 1, 1);
    return box;
}

QGroupBox* PlayerStatsWindow::makeLeaders() {
    QGroupBox* box = frame("Frame3", QStringLiteral("Team Leaders"), this);
    auto* column = new QVBoxLayout(box);
    for (const LeaderCaption& leader : LeaderCaptions) {
        QLabel* heading = headLabel(QLatin1String(leader.text), box, Qt::AlignLeft);
        heading->setObjectName(QLatin1String(leader.heading));
        column->addWidget(heading);
        auto* line = new QHBoxLayout;
        QLabel* name = textLabel(QLatin1String(leader.control) + QStringLiteral("Name"), box);
        name->setMinimumWidth(150);
        line->addWidget(name, 1);
        line->addWidget(figureLabel(QLatin1String(leader.control), box));
        column->addLayout(line);
    }
    column->addStretch();
    return box;
}

void PlayerStatsWindow::refresh() {
    const TeamIndex team(object_.PlayersTeamSelect);
    teams_->setCurrentIndex(team.number());
    if (team.number() != PlayerStats::NotChosen) {
        name_->setPixmap(pictures::teamNameBig(team));
        logo_->setPixmap(pictures::teamLogo(team).scaledToHeight(64, Qt::SmoothTransformation));
        logo2_->setPixmap(logo_->pixmap());
    }
    markHeads(skaters_, object_.SkaterSortColumn, object_.SkaterSortAscending);
    markHeads(goalies_, object_.TeamGoalieSortColumn, object_.TeamGoalieSortAscending);
    showRows(skaters_, object_.content().skaters);
    showRows(goalies_, object_.content().goalies);
    showLeaders();
}

void PlayerStatsWindow::markHeads(const Table& table, int column, bool ascending) {
    for (int each = 0; each <= NameColumn; ++each)
        table.heads[each]->mark(each != column ? SortMark::None
                                : ascending    ? SortMark::Ascending
                                               : SortMark::Descending);
}

void PlayerStatsWindow::showRows(const Table& table, const std::vector<PlayerTableRow>& rows) {
    for (std::size_t row = 0; row < table.columns.front().size(); ++row) {
        const PlayerTableRow shown = row < rows.size() ? rows[row] : PlayerTableRow();
        for (int column = 0; column < NameColumn; ++column)
            setText(table.columns[column], row, shown.texts[column]);
        setText(table.columns[NameColumn], row, shown.Name);
    }
}

void PlayerStatsWindow::showLeaders() {
    const auto& leaders = object_.content().leaders;
    for (const LeaderCaption& caption : LeaderCaptions) {
        const auto leader = std::ranges::find(leaders, caption.control, &PlayerStats::Leader::control);
        const bool isKnown = leader != leaders.end();
        const QString control = QLatin1String(caption.control);
        findChild<QLabel*>(control)->setText(isKnown ? toQt(leader->value) : QString());
        findChild<QLabel*>(control + QStringLiteral("Name"))
            ->setText(isKnown ? toQt(leader->Name) : QString());
    }
}

} // namespace iceline::desktop
