#include "desktop/SeriesBox.h"

#include "desktop/Controls.h"

#include <QGraphicsOpacityEffect>
#include <QGridLayout>

namespace iceline::desktop {

namespace {

constexpr int BannerHeight = 24;
constexpr int BannerWidth = 120;
constexpr int WinsWidth = 16;
constexpr double LoserOpacity = 0.4;

} // namespace

SeriesBox::SeriesBox(const Names& names, QWidget* parent) : QFrame(parent) {
    setProperty("role", QStringLiteral("series"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 5, 4, 5);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(0);
    int line = 0;
    for (std::size_t team = 0; team < rows_.size(); ++team, line += 2) {
        const Row& row = rows_[team] = makeRow(names, team);
        if (row.seed)
            grid->addWidget(row.seed, line, 0);
        grid->addWidget(row.banner, line, 1);
        grid->addWidget(row.wins, line, 2);
    }
    dash_ = headLabel(QStringLiteral("-"), this, Qt::AlignCenter);
    dash_->setObjectName(names.dash);
    grid->addWidget(dash_, 1, 2);
    grid->setRowMinimumHeight(1, 10);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

SeriesBox::Row SeriesBox::makeRow(const Names& names, std::size_t team) {
    Row row;
    if (!names.seeds[team].isEmpty()) {
        row.seed = textLabel(names.seeds[team], this);
        row.seed->setProperty("role", QStringLiteral("head"));
    }
    row.banner = pictureLabel(names.banners[team], this);
    row.banner->setFixedSize(BannerWidth, BannerHeight);
    row.fading = new QGraphicsOpacityEffect(row.banner);
    row.fading->setOpacity(1);
    row.banner->setGraphicsEffect(row.fading);
    row.wins = figureLabel(names.wins[team], this);
    row.wins->setProperty("role", QStringLiteral("wins"));
    row.wins->setFixedWidth(WinsWidth);
    row.wins->setAlignment(Qt::AlignCenter);
    return row;
}

void SeriesBox::setSeeds(const std::array<QString, 2>& seeds) {
    for (std::size_t team = 0; team < rows_.size(); ++team)
        rows_[team].seed->setText(seeds[team]);
}

void SeriesBox::show(const Series& series) {
    decided_ = series.winner != BlankTeam;
    for (std::size_t team = 0; team < rows_.size(); ++team) {
        const Row& row = rows_[team];
        const bool lost = decided_ && series.teams[team] != series.winner;
        showTeamBanner(row.banner, series.teams[team], BannerHeight);
        row.fading->setOpacity(lost ? LoserOpacity : 1);
        row.wins->setText(series.wins[team]);
        setStyleProperty(row.wins, "result",
                         !decided_ ? QString()
                         : lost    ? QStringLiteral("lost")
                                   : QStringLiteral("won"));
    }
    dash_->setVisible(!series.wins[0].isEmpty());
    setStyleProperty(this, "decided", decided_);
}

int SeriesBox::middleOf(SeriesTeam team) const {
    return y() + rows_[static_cast<std::size_t>(team)].banner->geometry().center().y();
}

} // namespace iceline::desktop
