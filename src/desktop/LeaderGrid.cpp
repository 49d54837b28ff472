#include "desktop/LeaderGrid.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>

namespace iceline::desktop {

namespace {

constexpr int RowHeight = 24;
constexpr int NameWidth = 220;

// Places in the grid, from the left.
constexpr int NumberPlace = 0;
constexpr int PicturePlace = 1;
constexpr int NamePlace = 2;
constexpr int FirstFigurePlace = 3;

SortMark markOf(LeaderSort sort) {
    return sort.ascending ? SortMark::Ascending : SortMark::Descending;
}

} // namespace

LeaderGridForm teamLeaderForm() {
    return {.numbers = "Text3",
            .pictures = "LeagueLeaderTeam3",
            .names = nullptr,
            .heads = "tmLeadersCol",
            .headsAre = LeaderHeads::NamesAndFigures,
            .rows = LeagueTeams,
            .nameCaption = QStringLiteral("Teams"),
            .columns = gridColumns(TeamLeaderColumns)};
}

LeaderGrid::LeaderGrid(const LeaderGridForm& form, std::function<void(int)> click, QWidget* parent)
    : QWidget(parent), form_(form), numbers_(textLabel(QLatin1String(form.numbers), this)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 2, 6, 2);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(1);
    numbers_->hide();
    addNameHead(click);
    int column = 0;
    for (const LeaderGridColumn& each : form_.columns) {
        addHead(column, each.caption, FirstFigurePlace + column, click);
        ++column;
    }
    for (int row = 0; row < form_.rows; ++row)
        rows_.push_back(makeRow(row));
    grid->setColumnMinimumWidth(namePlace(), NameWidth);
    grid->setColumnStretch(namePlace(), 1);
    grid->setRowStretch(form_.rows + 1, 1);
}

int LeaderGrid::namePlace() const {
    return form_.names ? NamePlace : PicturePlace;
}

void LeaderGrid::addNameHead(const std::function<void(int)>& click) {
    if (form_.headsAre == LeaderHeads::NamesAndFigures) {
        addHead(NoColumn, form_.nameCaption, namePlace(), click);
        return;
    }
    QLabel* head = headLabel(form_.nameCaption, this, Qt::AlignLeft | Qt::AlignVCenter);
    static_cast<QGridLayout*>(layout())->addWidget(head, 0, namePlace());
}

void LeaderGrid::addHead(int column, const QString& caption, int place,
                         const std::function<void(int)>& click) {
    const int element = form_.headsAre == LeaderHeads::NamesAndFigures ? column + 1 : column;
    const QString name = form_.headsAre == LeaderHeads::Single ? QLatin1String(form_.heads)
                                                               : desktop::element(form_.heads, element);
    auto* button = new SortHead(name, caption, this);
    connect(button, &QPushButton::clicked, this, [click, element] { click(element); });
    heads_.push_back({column, button});
    static_cast<QGridLayout*>(layout())->addWidget(button, 0, place);
}

LeaderGrid::Row LeaderGrid::makeRow(int row) {
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->setRowMinimumHeight(row + 1, RowHeight);
    const auto add = [&](QLabel* label, int place) {
        grid->addWidget(label, row + 1, place);
        return label;
    };
    Row made;
    made.number = add(headLabel({}, this), NumberPlace);
    if (form_.pictures)
        made.picture = add(pictureLabel(element(form_.pictures, row), this), PicturePlace);
    if (form_.names)
        made.name = add(textLabel(element(form_.names, row), this), NamePlace);
    int place = FirstFigurePlace;
    for (const LeaderGridColumn& column : form_.columns)
        made.figures.push_back(add(figureLabel(element(column.labels, row), this), place++));
    return made;
}

void LeaderGrid::show(const std::vector<LeaderLine>& lines, LeaderSort sort) {
    for (const Head& head : heads_)
        head.button->mark(head.column == sort.column ? markOf(sort) : SortMark::None);
    QString numbers;
    auto line = lines.begin();
    for (const Row& row : rows_) {
        if (line == lines.end()) {
            empty(row);
            continue;
        }
        fill(row, *line);
        numbers += QString::number(line->number) + QLatin1Char('\n');
        ++line;
    }
    numbers_->setText(numbers);
}

void LeaderGrid::fill(const Row& row, const LeaderLine& line) {
    row.number->setText(QString::number(line.number));
    if (row.picture) {
        row.picture->setPixmap(pictures::teamNameMini(line.team));
        row.picture->show();
    }
    if (row.name)
        row.name->setText(toQt(line.name));
    for (std::size_t column = 0; column < row.figures.size(); ++column)
        setText(row.figures, column, line.figures[column]);
}

void LeaderGrid::empty(const Row& row) {
    row.number->clear();
    if (row.picture)
        row.picture->hide();
    if (row.name)
        row.name->clear();
    for (QLabel* figure : row.figures)
        figure->clear();
}

} // namespace iceline::desktop
