#include "desktop/HistoryWindow.h"

#include "desktop/Controls.h"
#include "desktop/CorrectionDialog.h"
#include "desktop/GameReportWindow.h"
#include "desktop/QtPlatform.h"
#include "store/LeaguePaths.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>

#include <algorithm>
#include <array>

namespace iceline::desktop {

namespace {

/// The kinds of operations as the log names them, and how the list of filters calls them.
struct Kind {
    const char* what;
    const char* caption;
};
constexpr std::array Kinds{Kind{"", "All Operations"},
                           Kind{"import", "Games"},
                           Kind{"import refused", "Refused Games"},
                           Kind{"coach add", "New Coaches"},
                           Kind{"coach rename", "Renamed Coaches"},
                           Kind{"coach delete", "Deleted Coaches"},
                           Kind{"coach clear", "Cleared Coaches"},
                           Kind{"season-length", "Season Lengths"},
                           Kind{"clear", "Cleared Teams"},
                           Kind{"play-offs begun", "Play-offs"}};

QStandardItem* item(const QVariant& value) {
    auto* made = new QStandardItem;
    made->setData(value, Qt::DisplayRole);
    made->setEditable(false);
    return made;
}

QString stateOf(const HistoryRow& row) {
    if (row.undone)
        return QStringLiteral("undone");
    return row.step.corrected ? QStringLiteral("corrected") : QString();
}

} // namespace

HistoryWindow::HistoryWindow(Application& application) : app_(application), history_(application) {
    setObjectName(QStringLiteral("History"));
    setWindowTitle(QStringLiteral("History"));
    auto* column = new QVBoxLayout(page_.widget());
    column->addWidget(makeFilters());
    column->addWidget(makeTable(), 1);
    column->addWidget(makeButtons());
    for (const auto& key : {QStringLiteral("Esc"), QStringLiteral("Ctrl+W")})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    table_->setFocus(); // so that Ctrl+Z is not the search field's
    connect(new QShortcut(QStringLiteral("Ctrl+F"), this), &QShortcut::activated, search_,
            qOverload<>(&QWidget::setFocus));
}

QWidget* HistoryWindow::makeFilters() {
    auto* filters = new QWidget(this);
    auto* row = new QHBoxLayout(filters);
    row->setContentsMargins(0, 0, 0, 0);
    search_ = new QLineEdit(filters);
    search_->setObjectName(QStringLiteral("Search"));
    search_->setPlaceholderText(QStringLiteral("Search"));
    search_->setClearButtonEnabled(true);
    row->addWidget(search_, 1);
    team_ = addFilter(*row, "Team", QStringLiteral("Team"));
    team_->addItem(QStringLiteral("All Teams"));
    for (const TeamIndex team : AllLeagueTeams)
        team_->addItem(toQt(TeamName[team]));
    coach_ = addFilter(*row, "Coach", QStringLiteral("Coach"));
    coach_->addItem(QStringLiteral("All Coaches"));
    kind_ = addFilter(*row, "Kind", QStringLiteral("Kind of operation"));
    for (const Kind& kind : Kinds)
        kind_->addItem(QString::fromLatin1(kind.caption), QString::fromLatin1(kind.what));
    part_ = addFilter(*row, "Part", QStringLiteral("Part of the year"));
    part_->addItems({QStringLiteral("Whole Year"), QStringLiteral("Season"), QStringLiteral("Play-offs")});
    connect(search_, &QLineEdit::textChanged, this, &HistoryWindow::takeFilters);
    for (const QComboBox* list : {team_, coach_, kind_, part_})
        connect(list, &QComboBox::currentIndexChanged, this, &HistoryWindow::takeFilters);
    return filters;
}

QComboBox* HistoryWindow::addFilter(QLayout& row, const char* name, const QString& accessibleName) {
    auto* list = new QComboBox(this);
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(accessibleName);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    row.addWidget(list);
    return list;
}

QTableView* HistoryWindow::makeTable() {
    table_ = new QTableView(this);
    table_->setObjectName(QStringLiteral("Operations"));
    table_->setAccessibleName(QStringLiteral("Operations"));
    rows_.setHorizontalHeaderLabels({QStringLiteral("#"), QStringLiteral("Time (UTC)"),
                                     QStringLiteral("Operation"), QStringLiteral("State")});
    table_->setModel(&rows_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setAlternatingRowColors(true);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(Operation, QHeaderView::Stretch);
    table_->setSortingEnabled(true);
    table_->sortByColumn(Number, Qt::DescendingOrder);
    const int letter = table_->fontMetrics().averageCharWidth();
    table_->setMinimumSize(110 * letter, 20 * table_->fontMetrics().height());
    connect(table_, &QTableView::activated, this, &HistoryWindow::showReport);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HistoryWindow::showButtons);
    return table_;
}

QPushButton* HistoryWindow::addButton(QLayout& row, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    row.addWidget(button);
    return button;
}

QWidget* HistoryWindow::makeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    undo_ = addButton(*row, "Undo", QStringLiteral("&Undo"));
    redo_ = addButton(*row, "Redo", QStringLiteral("&Redo"));
    correct_ = addButton(*row, "Correct", QStringLiteral("&Correct Game..."));
    report_ = addButton(*row, "Report", QStringLiteral("Game Re&port"));
    row->addStretch();
    QPushButton* exportData = addButton(*row, "Export", QStringLiteral("&Export..."));
    row->addWidget(exitButton("Close", this));
    connect(undo_, &QPushButton::clicked, this, [this] { run([this] { history_.Undo_Click(chosen()); }); });
    connect(redo_, &QPushButton::clicked, this, &HistoryWindow::redoLast);
    connect(correct_, &QPushButton::clicked, this, &HistoryWindow::correctChosen);
    connect(report_, &QPushButton::clicked, this, &HistoryWindow::showReport);
    connect(exportData, &QPushButton::clicked, this,
            [this] { guarded(this, [this] { history_.Export_Click(); }); });
    return buttons;
}

void HistoryWindow::undoLast() {
    run([this] { history_.Undo_Click(std::nullopt); });
}

void HistoryWindow::redoLast() {
    run([this] { history_.Redo_Click(); });
}

void HistoryWindow::takeFilters() {
    const int team = team_->currentIndex() - 1;
    history_.filter.team = team < 0 ? std::nullopt : std::optional(TeamIndex(team));
    history_.filter.coach = coach_->currentIndex() > 0 ? fromQt(coach_->currentText()) : "";
    history_.filter.what = fromQt(kind_->currentData().toString());
    history_.filter.part =
        std::array<std::optional<PartOfYear>, 3>{std::nullopt, PartOfYear::Season, PartOfYear::Playoffs}.at(
            static_cast<std::size_t>(part_->currentIndex()));
    history_.filter.text = fromQt(search_->text());
    history_.showFiltered();
    fill();
}

bool HistoryWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && app_.operationsCommitted() != committedWhenRead_)
        showAgain();
    return QWidget::event(event);
}

void HistoryWindow::showAgain() {
    committedWhenRead_ = app_.operationsCommitted();
    guarded(this, [this] { history_.Form_Load(); });
    fillCoaches();
    takeFilters();
}

/// The coach that was chosen stays, where he is still named.
void HistoryWindow::fillCoaches() {
    const QSignalBlocker blocker(coach_);
    const QString chosen = coach_->currentIndex() > 0 ? coach_->currentText() : QString();
    while (coach_->count() > 1)
        coach_->removeItem(1);
    for (const std::string& coach : history_.content().coaches)
        coach_->addItem(toQt(coach));
    coach_->setCurrentIndex(chosen.isEmpty() ? 0 : std::max(0, coach_->findText(chosen)));
}

void HistoryWindow::fill() {
    table_->setSortingEnabled(false);
    rows_.removeRows(0, rows_.rowCount());
    for (const HistoryRow& row : history_.content().rows)
        rows_.appendRow({item(row.number), item(toQt(row.time).replace(u'T', u' ').remove(u'Z')),
                         item(toQt(row.title)), item(stateOf(row))});
    table_->setSortingEnabled(true);
    showButtons();
}

void HistoryWindow::showButtons() {
    undo_->setText(chosen() ? QStringLiteral("&Undo This Operation")
                            : QStringLiteral("&Undo Last Operation"));
    undo_->setEnabled(history_.content().canUndo);
    redo_->setEnabled(history_.content().canRedo);
    const HistoryRow* game = chosenGame();
    correct_->setEnabled(game && !game->undone &&
                         std::holds_alternative<GameImported>(game->step.entry.operation));
    report_->setEnabled(game);
}

const HistoryRow* HistoryWindow::chosenGame() const {
    const auto& rows = history_.content().rows;
    const auto row =
        std::ranges::find(rows, chosen(), [](const auto& one) { return std::optional(one.number); });
    return row != rows.end() && row->game() ? &*row : nullptr;
}

void HistoryWindow::correctChosen() {
    const HistoryRow* row = chosenGame();
    if (!row)
        return;
    guarded(this, [&] {
        CorrectionDialog dialog(toQt(row->title), *row->game(), app_.files().foldersIn(paths::Coaches), this);
        const int number = row->number;
        if (dialog.exec() == QDialog::Accepted)
            run([&] { history_.Correct_Click(number, dialog.correction()); });
    });
}

void HistoryWindow::showReport() {
    const HistoryRow* row = chosenGame();
    if (!row)
        return;
    guarded(this, [&] {
        if (const auto report = history_.report(row->number))
            (new GameReportWindow(toQt(row->title), *report, this))->show();
    });
}

std::optional<int> HistoryWindow::chosen() const {
    const QModelIndexList selected = table_->selectionModel()->selectedRows(Number);
    return selected.isEmpty() ? std::nullopt : std::optional(selected.front().data().toInt());
}

} // namespace iceline::desktop
