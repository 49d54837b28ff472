#include "desktop/PlayoffsWindow.h"

#include "desktop/BracketPanel.h"
#include "desktop/Controls.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace iceline::desktop {

PlayoffsWindow::PlayoffsWindow(Application& application, WindowId id, Playoffs& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(page());
    QGroupBox* box = frame("Frame5", QStringLiteral("Playoff Tree"), this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 4, 0, 0);
    bracket_ = new BracketPanel(box);
    column->addWidget(bracket_);
    rows->addWidget(box, 1);
    auto* foot = new QHBoxLayout;
    note_ = headLabel({}, this, Qt::AlignLeft | Qt::AlignVCenter);
    foot->addWidget(note_, 1);
    foot->addWidget(exitButton("Command2", this));
    rows->addLayout(foot);
    follow(object_);
}

void PlayoffsWindow::refresh() {
    const Playoffs::Content& content = object_.content();
    bracket_->show(content);
    note_->setText(
        content.PlayoffMode
            ? QString()
            : QStringLiteral("The regular season goes on: the play-offs as they would begin now."));
}

} // namespace iceline::desktop
