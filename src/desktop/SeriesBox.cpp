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
    for (int team = 0; team < 2; ++team) {
        const int line = 2 * team;
        if (!names.seeds[team].isEmpty()) {
            seed_[team] = textLabel(names.seeds[team], this);
            seed_[team]->setProperty("role", QStringLiteral("head"));
            grid->addWidget(seed_[team], line, 0);
        }
        banner_[team] = pictureLabel(names.banners[team], this);
        banner_[team]->setFixedSize(BannerWidth, BannerHeight);
        auto* fading = new QGraphicsOpacityEffect(banner_[team]);
        fading->setOpacity(1);
        banner_[team]->setGraphicsEffect(fading);
        grid->addWidget(banner_[team], line, 1);
        wins_[team] = figureLabel(names.wins[team], this);
        wins_[team]->setProperty("role", QStringLiteral("wins"));
        wins_[team]->setFixedWidth(WinsWidth);
        wins_[team]->setAlignment(Qt::AlignCenter);
        grid->addWidget(wins_[team], line, 2);
    }
    dash_ = headLabel(QStringLiteral("-"), this, Qt::AlignCenter);
    dash_->setObjectName(names.dash);
    dash_->setFixedHeight(10);
    grid->addWidget(dash_, 1, 2);
    grid->setRowMinimumHeight(1, 10);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SeriesBox::setSeeds(const std::array<QString, 2>& seeds) {
    for (int team = 0; team < 2; ++team)
        seed_[team]->setText(seeds[team]);
}

void SeriesBox::show(const Series& series) {
    decided_ = series.winner != BlankTeam;
    for (int team = 0; team < 2; ++team) {
        const bool lost = decided_ && series.teams[team] != series.winner;
        showTeamBanner(banner_[team], series.teams[team], BannerHeight);
        static_cast<QGraphicsOpacityEffect*>(banner_[team]->graphicsEffect())
            ->setOpacity(lost ? LoserOpacity : 1);
        wins_[team]->setText(series.wins[team]);
        setStyleProperty(wins_[team], "result",
                         !decided_ ? QString()
                         : lost    ? QStringLiteral("lost")
                                   : QStringLiteral("won"));
    }
    dash_->setVisible(!series.wins[0].isEmpty());
    setStyleProperty(this, "decided", decided_);
}

int SeriesBox::middleOf(SeriesTeam team) const {
    return y() + banner_[static_cast<std::size_t>(team)]->geometry().center().y();
}

} // namespace iceline::desktop
