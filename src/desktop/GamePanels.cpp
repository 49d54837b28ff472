#include "desktop/GamePanels.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "league/Numbers.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace iceline::desktop {

namespace {

constexpr int FigureRowHeight = 19;
constexpr int NameWidth = 168;
constexpr int FigureWidth = 34;
constexpr int FiguresWidth = 84;
constexpr int BannerHeight = 48;

QGridLayout* compactGrid(QWidget* owner) {
    auto* grid = new QGridLayout(owner);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(0);
    return grid;
}

} // namespace

GameRosterPanel::GameRosterPanel(const QString& team, const char* bannerName, QGroupBox* frame)
    : QWidget(frame), frame_(frame), banner_(pictureLabel(QLatin1String(bannerName), this)) {
    QGridLayout* grid = compactGrid(this);
    banner_->setFixedHeight(BannerHeight);
    grid->addWidget(banner_, 0, 0, 1, static_cast<int>(1 + PlayerFigures.size()));
    addColumn(*grid, 0, QStringLiteral("Names"));
    for (std::size_t figure = 0; figure < PlayerFigures.size(); ++figure)
        addColumn(*grid, static_cast<int>(1 + figure), toQt(PlayerFigures[figure].caption));
    for (const RosterIndex row : AllRosterRows)
        addRow(*grid, row, team);
    grid->setColumnStretch(0, 1);
}

void GameRosterPanel::addColumn(QGridLayout& grid, int column, const QString& caption) {
    const bool holdsNames = column == 0;
    grid.addWidget(headLabel(caption, this, holdsNames ? Qt::AlignLeft : Qt::AlignRight), 1, column);
    grid.setColumnMinimumWidth(column, holdsNames ? NameWidth : FigureWidth);
}

void GameRosterPanel::addRow(QGridLayout& grid, RosterIndex row, const QString& team) {
    int column = 0;
    const auto add = [&](QLabel* label) {
        grid.addWidget(label, row.number() + 2, column++);
        return label;
    };
    const auto name = [&](std::string_view control) {
        return element((team + toQt(control)).toLatin1(), row.number());
    };
    grid.setRowMinimumHeight(row.number() + 2, fontMetrics().height());
    Row& labels = rows_[row];
    labels.name = add(textLabel(name("Names"), this));
    for (std::size_t figure = 0; figure < PlayerFigures.size(); ++figure)
        labels.figures[figure] = add(figureLabel(name(PlayerFigures[figure].control), this));
}

void GameRosterPanel::show(const GameSide& side) {
    frame_->setTitle(toQt(TeamAbbr[side.team]));
    banner_->setPixmap(pictures::atMost(BannerHeight, pictures::teamNameBig(side.team)));
    for (const RosterIndex row : AllRosterRows) {
        const GamePlayerRow& player = side.players[row];
        rows_[row].name->setText(player.isEmpty() ? QString() : toQt(player.Name));
        for (std::size_t figure = 0; figure < PlayerFigures.size(); ++figure)
            rows_[row].figures[figure]->setText(
                player.isEmpty() ? QString() : QString::number(player.*PlayerFigures[figure].figure));
    }
}

GameFiguresPanel::GameFiguresPanel(const QString& team, QGroupBox* frame) : QWidget(frame), frame_(frame) {
    QGridLayout* grid = compactGrid(this);
    int row = 0;
    for (const TeamFigureLine& line : TeamFigureLines) {
        auto* texts = new QHBoxLayout;
        texts->setSpacing(3);
        texts->addStretch();
        texts->addWidget(add(line.first, team));
        if (line.second) {
            texts->addWidget(headLabel(QStringLiteral("/"), this));
            texts->addWidget(add(*line.second, team));
        }
        texts->addStretch();
        grid->addLayout(texts, row, 0);
        grid->setRowMinimumHeight(row++, FigureRowHeight);
    }
    grid->setRowStretch(row, 1);
    grid->setColumnMinimumWidth(0, FiguresWidth);
}

QLabel* GameFiguresPanel::add(const GameFigure& figure, const QString& team) {
    QLabel* label = figureLabel(team + toQt(figure.control), this);
    figures_.emplace_back(figure, label);
    return label;
}

void GameFiguresPanel::show(const GameSide& side) {
    frame_->setTitle(toQt(TeamAbbr[side.team]));
    for (const auto& [figure, label] : figures_)
        label->setText(toQt(figure.text(side.stats, numberText)));
}

GameFigureCaptions::GameFigureCaptions(QWidget* parent) : QWidget(parent) {
    QGridLayout* grid = compactGrid(this);
    int row = 0;
    for (const TeamFigureLine& line : TeamFigureLines) {
        grid->addWidget(headLabel(toQt(line.caption), this, Qt::AlignCenter), row, 0);
        grid->setRowMinimumHeight(row++, FigureRowHeight);
    }
    grid->setRowStretch(row, 1);
}

} // namespace iceline::desktop
