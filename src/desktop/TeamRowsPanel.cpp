#include "desktop/TeamRowsPanel.h"

#include "desktop/Controls.h"

#include <QGridLayout>
#include <QPainter>

namespace iceline::desktop {

namespace {

constexpr int BannerHeight = 22;
constexpr int BannerWidth = 116;
constexpr int FigureWidth = 40;

/// Lines and columns of the grid before the first row and the first figure.
constexpr int HeadLines = 2;
constexpr int FirstFigureColumn = 2;

void showMark(QLabel* label, const QString& mark) {
    label->setText(mark);
    setStyleProperty(label, "mark", mark);
}

} // namespace

TeamRowsPanel::TeamRowsPanel(const Arrays& arrays, int rows, int rowHeight, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(6, 0, 8, 0);
    grid_->setHorizontalSpacing(6);
    grid_->setVerticalSpacing(0);
    int column = FirstFigureColumn;
    for (const FigureColumn& figure : arrays.figures) {
        grid_->setColumnMinimumWidth(column, FigureWidth);
        if (!figure.head.isEmpty())
            grid_->addWidget(headLabel(figure.head, this), HeadLines - 1, column);
        ++column;
    }
    for (int row = 0; row < rows; ++row)
        addRow(arrays, row, rowHeight);
    grid_->setColumnStretch(1, 1);
    grid_->setRowStretch(HeadLines + rows, 1);
}

void TeamRowsPanel::addRow(const Arrays& arrays, int number, int height) {
    const int line = HeadLines + number;
    grid_->setRowMinimumHeight(line, height);
    Row row;
    if (!arrays.marks.isEmpty()) {
        row.mark = textLabel(element(arrays.marks.toLatin1(), number), this);
        row.mark->setProperty("role", QStringLiteral("mark"));
        row.mark->ensurePolished();
        row.mark->setAlignment(Qt::AlignCenter);
        const int side = row.mark->fontMetrics().height() + 2;
        row.mark->setFixedSize(side, side);
        grid_->addWidget(row.mark, line, 0, Qt::AlignCenter);
    }
    row.banner = pictureLabel(element(arrays.banners.toLatin1(), number), this);
    row.banner->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    row.banner->setMinimumWidth(BannerWidth);
    grid_->addWidget(row.banner, line, 1);
    for (const FigureColumn& figure : arrays.figures) {
        row.figures.push_back(figureLabel(element(figure.controls.toLatin1(), number), this));
        grid_->addWidget(row.figures.back(), line,
                         FirstFigureColumn + static_cast<int>(row.figures.size()) - 1);
    }
    rows_.push_back(row);
}

void TeamRowsPanel::addHeadOver(QWidget* head, int firstFigure, int figures) {
    grid_->addWidget(head, 0, FirstFigureColumn + firstFigure, 1, figures);
}

void TeamRowsPanel::addHint(QWidget* hint) {
    grid_->addWidget(hint, 0, 0, 1, FirstFigureColumn);
}

void TeamRowsPanel::setTitle(const QString& title) {
    grid_->addWidget(headLabel(title, this, Qt::AlignLeft | Qt::AlignVCenter), HeadLines - 1, 0, 1,
                     FirstFigureColumn);
}

void TeamRowsPanel::show(std::size_t row, TeamIndex team, const QStringList& figures, const QString& mark) {
    const Row& shown = rows_.at(row);
    showTeamBanner(shown.banner, team, BannerHeight);
    for (std::size_t i = 0; i < shown.figures.size(); ++i)
        shown.figures[i]->setText(figures.at(static_cast<qsizetype>(i)));
    if (shown.mark)
        showMark(shown.mark, mark);
}

std::vector<QLabel*> TeamRowsPanel::firstRow() const {
    std::vector<QLabel*> labels{rows_.front().banner};
    labels.insert(labels.end(), rows_.front().figures.begin(), rows_.front().figures.end());
    return labels;
}

void TeamRowsPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QRect line = grid_->cellRect(HeadLines + static_cast<int>(i), 1);
        if (i % 2 == 1)
            painter.fillRect(0, line.top(), width(), line.height(), palette().alternateBase());
        if (static_cast<int>(i) == lastPlayoffRow_) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
            painter.drawLine(0, line.bottom(), width(), line.bottom());
        }
    }
}

} // namespace iceline::desktop
