#include "desktop/HistoryWindow.h"

#include "desktop/Controls.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

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
    team_ = new QComboBox(filters);
    team_->setObjectName(QStringLiteral("Team"));
    team_->setAccessibleName(QStringLiteral("Team"));
    team_->addItem(QStringLiteral("All Teams"));
    for (const TeamIndex team : AllLeagueTeams)
        team_->addItem(toQt(TeamName[team]));
    kind_ = new QComboBox(filters);
    kind_->setObjectName(QStringLiteral("Kind"));
    kind_->setAccessibleName(QStringLiteral("Kind of operation"));
    for (const Kind& kind : Kinds)
        kind_->addItem(QString::fromLatin1(kind.caption), QString::fromLatin1(kind.what));
    row->addWidget(search_, 1);
    row->addWidget(team_);
    row->addWidget(kind_);
    connect(search_, &QLineEdit::textChanged, this, &HistoryWindow::takeFilters);
    connect(team_, &QComboBox::currentIndexChanged, this, &HistoryWindow::takeFilters);
    connect(kind_, &QComboBox::currentIndexChanged, this, &HistoryWindow::takeFilters);
    return filters;
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
    row->addStretch();
    row->addWidget(exitButton("Close", this));
    connect(undo_, &QPushButton::clicked, this, [this] { run([this] { history_.Undo_Click(chosen()); }); });
    connect(redo_, &QPushButton::clicked, this, &HistoryWindow::redoLast);
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
    history_.filter.what = fromQt(kind_->currentData().toString());
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
    fill();
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
}

std::optional<int> HistoryWindow::chosen() const {
    const QModelIndexList selected = table_->selectionModel()->selectedRows(Number);
    return selected.isEmpty() ? std::nullopt : std::optional(selected.front().data().toInt());
}

} // namespace iceline::desktop
