#include "desktop/PlayerStatsWindow.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

/// Room for the team's pictures, so that the window keeps its size when they come.
constexpr QSize LogoSize(64, 64);
constexpr QSize BannerSize(360, 64);
constexpr int NameWidth = 170;

/// The column of the layout for a column of figures: after that of the row numbers, and leaving one for the
/// name.
int layoutColumn(std::size_t column) {
    return static_cast<int>(column < ColumnsBeforeName ? column + 1 : column + 2);
}
constexpr int NameLayoutColumn = static_cast<int>(ColumnsBeforeName) + 1;

} // namespace

PlayerStatsWindow::PlayerStatsWindow(Application& application, WindowId id, PlayerStats& object)
    : LeagueWindow(application, id), object_(object) {
    auto* outer = new QVBoxLayout(page());
    QGroupBox* box = frame("Frame8", QStringLiteral("Player Stats"), this);
    outer->addWidget(box);
    auto* rows = new QVBoxLayout(box);
    rows->addLayout(makeHead());
    auto* columns = new QHBoxLayout;
    auto* tables = new QVBoxLayout;
    tables->addWidget(makeTable<SkaterStats>(
        skaters_,
        {"Frame1", "Forwards / Defensemen", "Text2", "PlayerStats", 23, &PlayerStats::PlayerStatsN_Click},
        SkaterColumns));
    tables->addWidget(makeTable<GoalieStats>(
        goalies_, {"Frame2", "Goalies", "Text3", "GPlayerStats", 4, &PlayerStats::GPlayerStatsN_Click},
        GoalieColumns));
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
    const auto addPicture = [&](const char* name, QSize size) {
        QLabel* picture = pictureLabel(QLatin1String(name), this);
        picture->setFixedSize(size);
        row->addWidget(picture);
        return picture;
    };
    logo_ = addPicture("PlayersTeamLogo", LogoSize);
    name_ = addPicture("PlayersTeamName", BannerSize);
    logo2_ = addPicture("PlayersTeamLogo2", LogoSize);
    row->addStretch();
    row->addWidget(exitButton("Command2", this));
    return row;
}

template <class Stats>
QGroupBox* PlayerStatsWindow::makeTable(Table& table, const TableForm& form,
                                        std::span<const PlayerColumn<Stats>> columns) {
    QGroupBox* box = frame(form.frame, QLatin1String(form.caption), this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(6, 2, 6, 2);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(0);
    for (const PlayerColumn<Stats>& column : columns) {
        const int place = layoutColumn(table.heads.size());
        addColumn(table, grid, form, toQt(column.caption), toQt(column.control), place);
    }
    addColumn(table, grid, form, QStringLiteral("Name"), QLatin1String(form.arrays) + QStringLiteral("Name"),
              NameLayoutColumn);
    for (QLabel* name : table.columns.back())
        name->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addNumbers(grid, form);
    grid->setColumnMinimumWidth(NameLayoutColumn, NameWidth);
    grid->setColumnStretch(NameLayoutColumn, 1);
    return box;
}

/// One label with all row numbers, each on the height of its row.
void PlayerStatsWindow::addNumbers(QGridLayout* grid, const TableForm& form) {
    QStringList numbers;
    for (int row = 1; row <= form.rows; ++row)
        numbers.append(QString::number(row));
    QLabel* label =
        headLabel(numbers.join(QLatin1Char('\n')), grid->parentWidget(), Qt::AlignRight | Qt::AlignTop);
    label->setObjectName(QLatin1String(form.numbers));
    label->ensurePolished();
    grid->addWidget(label, 1, 0, form.rows, 1);
    for (int row = 1; row <= form.rows; ++row)
        for (int column = 1; column < grid->columnCount(); ++column)
            grid->itemAtPosition(row, column)->widget()->setFixedHeight(label->fontMetrics().lineSpacing());
}

void PlayerStatsWindow::addColumn(Table& table, QGridLayout* grid, const TableForm& form,
                                  const QString& caption, const QString& labels, int place) {
    QWidget* box = grid->parentWidget();
    const int index = static_cast<int>(table.heads.size());
    const QString heads = QLatin1String(form.arrays) + QLatin1Char('N');
    auto* head = new SortHead(element(heads.toLatin1(), index), caption, box);
    connect(head, &QPushButton::clicked, this,
            [this, click = form.click, index] { run([this, click, index] { (object_.*click)(index); }); });
    table.heads.push_back(head);
    grid->addWidget(head, 0, place);
    auto& column = table.columns.emplace_back();
    for (int row = 0; row < form.rows; ++row) {
        column.push_back(figureLabel(element(labels.toLatin1(), row), box));
        grid->addWidget(column.back(), row + 1, place);
    }
}

QGroupBox* PlayerStatsWindow::makeLeaders() {
    QGroupBox* box = frame("Frame3", QStringLiteral("Team Leaders"), this);
    auto* grid = new QGridLayout(box);
    int row = 0;
    for (const LeaderCategory& category : LeaderCategories) {
        QLabel* caption = headLabel(toQt(category.caption), box, Qt::AlignLeft);
        caption->setObjectName(toQt(category.captionControl));
        grid->addWidget(caption, row++, 0, 1, 2);
        const QString control = toQt(category.control);
        grid->addWidget(leaders_.add(textLabel(control + QStringLiteral("Name"), box)), row, 0);
        grid->addWidget(leaders_.add(figureLabel(control, box)), row++, 1);
        grid->setRowMinimumHeight(row - 1, fontMetrics().height());
    }
    grid->setColumnMinimumWidth(0, NameWidth);
    grid->setRowStretch(row, 1);
    return box;
}

void PlayerStatsWindow::refresh() {
    teams_->setCurrentIndex(object_.PlayersTeamSelect);
    if (object_.PlayersTeamSelect != PlayerStats::NotChosen) {
        const TeamIndex team(object_.PlayersTeamSelect);
        name_->setPixmap(pictures::teamNameBig(team));
        logo_->setPixmap(pictures::atMost(LogoSize.height(), pictures::teamLogo(team)));
        logo2_->setPixmap(logo_->pixmap());
    }
    markHeads(skaters_, object_.SkaterSortColumn, object_.SkaterSortAscending);
    markHeads(goalies_, object_.TeamGoalieSortColumn, object_.TeamGoalieSortAscending);
    showRows(skaters_, object_.content().skaters);
    showRows(goalies_, object_.content().goalies);
    showLeaders();
}

void PlayerStatsWindow::markHeads(const Table& table, int column, bool ascending) {
    const SortHead* sorting = table.heads.at(static_cast<std::size_t>(column));
    for (SortHead* head : table.heads)
        head->mark(head != sorting ? SortMark::None : ascending ? SortMark::Ascending : SortMark::Descending);
}

void PlayerStatsWindow::showRows(const Table& table, const std::vector<PlayerTableRow>& rows) {
    const std::size_t figures = table.columns.size() - 1;
    for (std::size_t row = 0; row < table.columns.front().size(); ++row) {
        const PlayerTableRow shown =
            row < rows.size() ? rows[row] : PlayerTableRow{"", std::vector<std::string>(figures)};
        for (std::size_t column = 0; column < figures; ++column)
            setText(table.columns[column], row, shown.texts[column]);
        setText(table.columns.back(), row, shown.Name);
    }
}

void PlayerStatsWindow::showLeaders() {
    for (const LeaderCategory& category : LeaderCategories) {
        setText(leaders_, category.control, "");
        setText(leaders_, std::string(category.control) + "Name", "");
    }
    for (const CategoryLeader& leader : object_.content().leaders) {
        setText(leaders_, leader.control, leader.value);
        setText(leaders_, std::string(leader.control) + "Name", leader.Name);
    }
}

} // namespace iceline::desktop
