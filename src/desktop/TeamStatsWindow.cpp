#include "desktop/TeamStatsWindow.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/TeamFiguresPanel.h"

#include <QComboBox>
#include <QVBoxLayout>

namespace iceline::desktop {

TeamStatsWindow::TeamStatsWindow(Application& application, WindowId id, TeamStats& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(page());
    auto* head = new QHBoxLayout;
    teams_ = teamList("TeamSelect", QStringLiteral("Select Your Team Here"), this);
    connect(teams_, &QComboBox::activated, this, [this](int index) {
        run([this, index] {
            object_.TeamSelect = index;
            object_.TeamSelect_Click();
        });
    });
    head->addWidget(teams_);
    name_ = pictureLabel(QStringLiteral("TeamSelectedName"), this);
    name_->setFixedHeight(64);
    head->addWidget(name_, 1);
    logo_ = pictureLabel(QStringLiteral("TeamSelectedLogo"), this);
    logo_->setFixedSize(96, 96);
    head->addWidget(logo_);
    head->addWidget(exitButton("Command2", this), 0, Qt::AlignTop);
    rows->addLayout(head);
    figures_ = new TeamFiguresPanel(QStringLiteral("Arena              League"), this);
    rows->addWidget(figures_);
    rows->addStretch();
    follow(object_);
}

void TeamStatsWindow::refresh() {
    teams_->setCurrentIndex(object_.TeamSelect);
    if (!object_.content())
        return;
    const TeamIndex team(object_.TeamSelect);
    name_->setPixmap(pictures::teamNameBig(team));
    logo_->setPixmap(pictures::teamLogo(team));
    figures_->show(*object_.content());
}

} // namespace iceline::desktop
