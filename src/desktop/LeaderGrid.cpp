#include "desktop/LeaderGrid.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>

#include <algorithm>

namespace iceline::desktop {

namespace {

constexpr int RowHeight = 24;
constexpr int NumberColumn = 0;
constexpr int PictureColumn = 1;
constexpr int NameColumn = 2;
constexpr int FirstFigureColumn = 3;

} // namespace

LeaderGrid::LeaderGrid(const LeaderGridForm& form, std::function<void(int)> click, QWidget* parent)
    : QWidget(parent), form_(form), numbers_(textLabel(QLatin1String(form.numbers), this)),
      figures_(form.columns.size()) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 2, 6, 2);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(1);
    numbers_->hide();
    const int nameColumn = form_.names ? NameColumn : PictureColumn;
    if (form_.nameHead >= 0)
        addHead(form_.nameHead, form_.nameCaption, nameColumn, click);
    else
        grid->addWidget(headLabel(form_.nameCaption, this, Qt::AlignLeft | Qt::AlignVCenter), 0, nameColumn);
    for (std::size_t i = 0; i < form_.columns.size(); ++i)
        addHead(form_.columns[i].head, form_.columns[i].caption, FirstFigureColumn + static_cast<int>(i),
                click);
    for (int row = 0; row < form_.rows; ++row)
        addRow(row);
    grid->setColumnStretch(nameColumn, 1);
    grid->setRowStretch(form_.rows + 1, 1);
}

void LeaderGrid::addHead(int head, const QString& caption, int column,
                         const std::function<void(int)>& click) {
    const QString name =
        head == LeaderGridForm::SingleHead ? QLatin1String(form_.heads) : desktop::element(form_.heads, head);
    auto* button = new SortHead(name, caption, this);
    connect(button, &QPushButton::clicked, this, [click, head] { click(head); });
    heads_.push_back({head, button});
    static_cast<QGridLayout*>(layout())->addWidget(button, 0, column);
}

void LeaderGrid::addRow(int row) {
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->setRowMinimumHeight(row + 1, RowHeight);
    const auto add = [&](std::vector<QLabel*>& labels, QLabel* label, int column) {
        labels.push_back(label);
        grid->addWidget(label, row + 1, column);
    };
    add(shownNumbers_, headLabel({}, this), NumberColumn);
    if (form_.pictures)
        add(pictures_, pictureLabel(element(form_.pictures, row), this), PictureColumn);
    if (form_.names)
        add(names_, textLabel(element(form_.names, row), this), NameColumn);
    for (std::size_t i = 0; i < form_.columns.size(); ++i)
        add(figures_[i], figureLabel(element(form_.columns[i].labels, row), this),
            FirstFigureColumn + static_cast<int>(i));
}

void LeaderGrid::show(const std::vector<LeaderLine>& lines, int markedHead, bool ascending) {
    for (const Head& head : heads_)
        head.button->mark(head.element != markedHead ? SortMark::None
                          : ascending                ? SortMark::Ascending
                                                     : SortMark::Descending);
    QString numbers;
    for (int row = 0; row < form_.rows; ++row) {
        const bool isFilled = row < static_cast<int>(lines.size());
        showRow(row, isFilled ? &lines[row] : nullptr);
        if (isFilled)
            numbers += QString::number(lines[row].number) + QLatin1Char('\n');
    }
    numbers_->setText(numbers);
}

void LeaderGrid::showRow(int row, const LeaderLine* line) {
    shownNumbers_[row]->setText(line ? QString::number(line->number) : QString());
    if (form_.pictures) {
        if (line)
            pictures_[row]->setPixmap(pictures::teamNameMini(line->team));
        pictures_[row]->setVisible(line);
    }
    if (form_.names)
        names_[row]->setText(line ? toQt(line->name) : QString());
    for (std::size_t i = 0; i < form_.columns.size(); ++i)
        figures_[i][row]->setText(line ? toQt(line->figures[form_.columns[i].figure]) : QString());
}

} // namespace iceline::desktop
