#include "desktop/AllTimeRecordsWindow.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace iceline::desktop {

AllTimeRecordsWindow::AllTimeRecordsWindow(Application& application, WindowId id, AllTimeRecords& object)
    : LeagueWindow(application, id), object_(object) {
    const AllTimeRecords::Content& content = object_.content();
    auto* grid = new QGridLayout(this);
    grid->addWidget(makeSection("Frame1", QStringLiteral("Player Records"), shownPlayerRecords(content)), 0,
                    0);
    grid->addWidget(makeSection("Frame4", QStringLiteral("Goalie Records"), shownGoalieRecords(content)), 0,
                    1);
    grid->addWidget(makeSection("Frame2", QStringLiteral("Team Records"), shownTeamRecords(content)), 1, 0);
    grid->addWidget(makeSection("Frame3", QStringLiteral("Coach Records"), shownCoachRecords(content)), 1, 1);
    grid->addWidget(exitButton("Command2", this), 2, 1, Qt::AlignRight);
    follow(object_);
}

QGroupBox* AllTimeRecordsWindow::makeSection(const char* frameName, const QString& caption,
                                             const std::vector<ShownRecord>& records) {
    QGroupBox* box = frame(frameName, caption, this);
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(14);
    int row = 0;
    for (const ShownRecord& record : records) {
        grid->addWidget(headLabel(toQt(record.caption), box, Qt::AlignLeft | Qt::AlignVCenter), row, 0);
        if (!record.teamControl.empty()) {
            QLabel* team = pictureLabel(toQt(record.teamControl), box);
            team->setFixedSize(120, 26);
            grid->addWidget(team, row, 1);
        }
        if (!record.nameControl.empty()) {
            QLabel* name = textLabel(toQt(record.nameControl), box);
            name->setMinimumWidth(180);
            grid->addWidget(name, row, 2);
        }
        grid->addWidget(figureLabel(toQt(record.valueControl), box), row++, 3);
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
    return box;
}

void AllTimeRecordsWindow::refresh() {
    const AllTimeRecords::Content& content = object_.content();
    show(shownPlayerRecords(content));
    show(shownGoalieRecords(content));
    show(shownTeamRecords(content));
    show(shownCoachRecords(content));
}

void AllTimeRecordsWindow::show(const std::vector<ShownRecord>& records) {
    for (const ShownRecord& record : records) {
        if (!record.teamControl.empty())
            findChild<QLabel*>(toQt(record.teamControl))->setPixmap(pictures::teamNameMini(*record.team));
        if (!record.nameControl.empty())
            findChild<QLabel*>(toQt(record.nameControl))->setText(toQt(record.name));
        findChild<QLabel*>(toQt(record.valueControl))->setText(toQt(record.value));
    }
}

} // namespace iceline::desktop
