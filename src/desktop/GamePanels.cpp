#include "desktop/GamePanels.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace iceline::desktop {

namespace {

constexpr int RowHeight = 17;
constexpr int FigureRowHeight = 19;
constexpr int NameWidth = 168;
constexpr int FigureWidth = 34;

struct RosterColumn {
    const char* name;
    const char* caption;
};

constexpr RosterColumn RosterColumns[] = {
    {"Names", "Names"}, {"Goals", "G"}, {"Assists", "A"}, {"Points", "Pts."}, {"SOG", "SOG"}, {"PIM", "PIM"},
};

/// A line of figures: its caption, and the labels whose texts stand side by side in it.
struct FigureLine {
    const char* caption;
    std::vector<const char*> names;
};

const std::vector<FigureLine>& figureLines() {
    static const std::vector<FigureLine> lines{
        {"Goals", {"Score"}},
        {"Shots", {"Shots"}},
        {"Shooting Pct.%", {"ShootingPct"}},
        {"PPG / PPA", {"PPG", "PPA"}},
        {"Penalties", {"Penalties", "PenM"}},
        {"Faceoffs Won", {"FaceoffsWon"}},
        {"Faceoff Win %", {"FaceWinPct"}},
        {"Body Checks", {"BodyChecks"}},
        {"Attacking Zone", {"AttackZone"}},
        {"Passes / Pass Att.", {"PassComp", "PassAtt"}},
        {"Pass Accuracy %", {"PassAcc"}},
    };
    return lines;
}

QGridLayout* compactGrid(QWidget* owner) {
    auto* grid = new QGridLayout(owner);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(0);
    return grid;
}

std::array<int, 5> figuresOf(const GamePlayerRow& row) {
    return {row.G, row.A, row.Pts, row.SOG, row.PIM};
}

std::vector<std::pair<const char*, QString>> figureTexts(const TeamGameStats& stats) {
    const auto number = [](int value) { return QString::number(value); };
    return {
        {"Score", number(stats.Goals)},
        {"Shots", number(stats.Shots)},
        {"ShootingPct", toQt(stats.ShootingPct)},
        {"PPG", number(stats.PPG)},
        {"PPA", number(stats.PPA)},
        {"Penalties", number(stats.Penalties)},
        {"PenM", number(stats.PenM)},
        {"FaceoffsWon", number(stats.FaceoffsWon)},
        {"FaceWinPct", toQt(stats.FaceWinPct)},
        {"BodyChecks", number(stats.BodyChecks)},
        {"AttackZone", toQt(stats.AttackZoneText)},
        {"PassComp", number(stats.PassComp)},
        {"PassAtt", number(stats.PassAtt)},
        {"PassAcc", toQt(stats.PassAcc)},
    };
}

} // namespace

GameRosterPanel::GameRosterPanel(const QString& team, const char* bannerName, QGroupBox* frame)
    : QWidget(frame), frame_(frame), banner_(pictureLabel(QLatin1String(bannerName), this)) {
    QGridLayout* grid = compactGrid(this);
    banner_->setFixedHeight(48);
    grid->addWidget(banner_, 0, 0, 1, 6);
    for (int column = 0; column < 6; ++column) {
        const Qt::Alignment alignment = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
        grid->addWidget(headLabel(QLatin1String(RosterColumns[column].caption), this, alignment), 1, column);
        grid->setColumnMinimumWidth(column, column == 0 ? NameWidth : FigureWidth);
        for (int row = 0; row < RosterRows; ++row) {
            const QString name = element((team + QLatin1String(RosterColumns[column].name)).toLatin1(), row);
            QLabel* label = column == 0 ? textLabel(name, this) : figureLabel(name, this);
            label->setFixedHeight(RowHeight);
            columns_[column].push_back(label);
            grid->addWidget(label, row + 2, column);
        }
    }
    grid->setColumnStretch(0, 1);
}

void GameRosterPanel::show(const GameSide& side) {
    frame_->setTitle(toQt(TeamAbbr[side.team]));
    banner_->setPixmap(pictures::teamNameBig(side.team).scaledToHeight(
        static_cast<int>(48 * devicePixelRatioF()), Qt::SmoothTransformation));
    for (int row = 0; row < RosterRows; ++row) {
        const GamePlayerRow& player = side.players[row];
        columns_[0][row]->setText(player.isEmpty() ? QString() : toQt(player.Name));
        const std::array<int, 5> figures = figuresOf(player);
        for (int figure = 0; figure < 5; ++figure)
            columns_[figure + 1][row]->setText(player.isEmpty() ? QString()
                                                                : QString::number(figures[figure]));
    }
}

GameFiguresPanel::GameFiguresPanel(const QString& team, QGroupBox* frame)
    : QWidget(frame), frame_(frame), team_(team) {
    QGridLayout* grid = compactGrid(this);
    int row = 0;
    for (const FigureLine& line : figureLines()) {
        auto* texts = new QHBoxLayout;
        texts->setSpacing(3);
        texts->addStretch();
        for (const char* name : line.names) {
            if (name != line.names.front())
                texts->addWidget(headLabel(QStringLiteral("/"), this));
            texts->addWidget(add(QLatin1String(name)));
        }
        texts->addStretch();
        grid->addLayout(texts, row, 0);
        grid->setRowMinimumHeight(row++, FigureRowHeight);
    }
    grid->setRowStretch(row, 1);
    setMinimumWidth(84);
}

QLabel* GameFiguresPanel::add(const QString& name) {
    return figureLabel(team_ + name, this);
}

void GameFiguresPanel::show(const GameSide& side) {
    frame_->setTitle(toQt(TeamAbbr[side.team]));
    for (const auto& [name, text] : figureTexts(side.stats))
        findChild<QLabel*>(team_ + QLatin1String(name))->setText(text);
}

GameFigureCaptions::GameFigureCaptions(QWidget* parent) : QWidget(parent) {
    QGridLayout* grid = compactGrid(this);
    int row = 0;
    for (const FigureLine& line : figureLines()) {
        grid->addWidget(headLabel(QLatin1String(line.caption), this, Qt::AlignCenter), row, 0);
        grid->setRowMinimumHeight(row++, FigureRowHeight);
    }
    grid->setRowStretch(row, 1);
}

} // namespace iceline::desktop
