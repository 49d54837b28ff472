#include "desktop/AllTimeRecordsWindow.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace iceline::desktop {

namespace {

constexpr int NameWidth = 180;

} // namespace

AllTimeRecordsWindow::AllTimeRecordsWindow(Application& application, WindowId id, AllTimeRecords& object)
    : LeagueWindow(application, id), object_(object) {
    auto* grid = new QGridLayout(page());
    int place = 0;
    for (const RecordSection& section : recordSections(object_.content())) {
        grid->addWidget(makeSection(section), place / 2, place % 2);
        ++place;
    }
    grid->addWidget(exitButton("Command2", this), 2, 1, Qt::AlignRight);
    follow(object_);
}

QGroupBox* AllTimeRecordsWindow::makeSection(const RecordSection& section) {
    QGroupBox* box = frame(section.frame, toQt(section.caption), this);
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(14);
    int row = 0;
    for (const ShownRecord& record : section.records) {
        grid->addWidget(headLabel(toQt(record.caption), box, Qt::AlignLeft | Qt::AlignVCenter), row, 0);
        if (!record.teamControl.empty()) {
            QLabel* team = labels_.add(pictureLabel(toQt(record.teamControl), box));
            team->setFixedSize(120, 26);
            grid->addWidget(team, row, 1);
        }
        if (!record.nameControl.empty())
            grid->addWidget(labels_.add(textLabel(toQt(record.nameControl), box)), row, 2);
        grid->addWidget(labels_.add(figureLabel(toQt(record.valueControl), box)), row++, 3);
    }
    grid->setColumnMinimumWidth(2, NameWidth);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
    return box;
}

void AllTimeRecordsWindow::refresh() {
    for (const RecordSection& section : recordSections(object_.content()))
        for (const ShownRecord& record : section.records)
            show(record);
}

void AllTimeRecordsWindow::show(const ShownRecord& record) {
    if (record.team)
        labels_[record.teamControl].setPixmap(pictures::teamNameMini(*record.team));
    if (!record.nameControl.empty())
        setText(labels_, record.nameControl, record.name);
    setText(labels_, record.valueControl, record.value);
}

} // namespace iceline::desktop
