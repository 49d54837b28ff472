#include "desktop/CoachStatsWindow.h"

#include "desktop/Controls.h"
#include "desktop/LeaderGrid.h"
#include "desktop/QtPlatform.h"
#include "desktop/TeamFiguresPanel.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace iceline::desktop {

namespace {

constexpr int RankingRows = 26;

LeaderGridForm rankingForm(const std::vector<std::string>& coaches) {
    LeaderGridForm form = teamLeaderForm();
    form.numbers = "Text44";
    form.pictures = nullptr;
    form.names = "LeagueLeaderTeam3";
    form.nameCaption = QStringLiteral("Coaches");
    form.rows = std::max(RankingRows, static_cast<int>(coaches.size()));
    return form;
}

} // namespace

CoachStatsWindow::CoachStatsWindow(Application& application, WindowId id, CoachStats& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(page());
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTab1"));
    tabs->addTab(makeStats(), QStringLiteral("Coaching Stats"));
    tabs->addTab(makeRanking(), QStringLiteral("Coach Rankings"));
    rows->addWidget(tabs);
    follow(object_);
}

QWidget* CoachStatsWindow::makeStats() {
    QGroupBox* box = frame("Frame1", QStringLiteral("Coaching Stats"), this);
    auto* rows = new QVBoxLayout(box);
    auto* head = new QHBoxLayout;
    coaches_ = choiceList("TeamSelect", QStringLiteral("Select Your Coach Here"), box);
    for (const std::string& coach : object_.content().coaches)
        coaches_->addItem(toQt(coach));
    connect(coaches_, &QComboBox::activated, this, [this](int index) {
        run([this, index] {
            object_.TeamSelect = index;
            object_.TeamSelect_Click();
        });
    });
    head->addWidget(coaches_);
    name_ = new QLineEdit(box);
    name_->setObjectName(QStringLiteral("CoachName"));
    name_->setReadOnly(true);
    head->addWidget(name_, 1);
    rows->addLayout(head);
    figures_ = new TeamFiguresPanel(QStringLiteral("Coach              League"), box);
    rows->addWidget(figures_);
    rows->addStretch();
    rows->addWidget(exitButton("Command2(0)", this), 0, Qt::AlignRight);
    return box;
}

QWidget* CoachStatsWindow::makeRanking() {
    QGroupBox* box = frame("Frame2", QStringLiteral("Coach Rankings"), this);
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(exitButton("Command2(1)", this), 0, Qt::AlignRight);
    rows->addWidget(makeLeaders(box));
    rows->addWidget(exitButton("Command2(2)", this), 0, Qt::AlignRight);
    return box;
}

QWidget* CoachStatsWindow::makeLeaders(QWidget* parent) {
    QGroupBox* box = frame("Frame3", QStringLiteral("Coach Leaders"), parent);
    auto* rows = new QVBoxLayout(box);
    auto* area = new QScrollArea(box);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    ranking_ = new LeaderGrid(
        rankingForm(object_.content().coaches),
        [this](int head) {
            run([this, head] {
                object_.tmLeadersCol_Click(head);
                object_.renew();
            });
        },
        area);
    area->setWidget(ranking_);
    ranking_->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false); // the frame's white shows through
    rows->addWidget(area);
    return box;
}

void CoachStatsWindow::refresh() {
    const CoachStats::Content& content = object_.content();
    coaches_->setCurrentIndex(object_.TeamSelect);
    name_->setText(toQt(object_.CoachName()));
    if (content.coach)
        figures_->show(*content.coach);
    ranking_->show(content.ranking.lines, {object_.CoachSortColumn, object_.CoachSortAscending});
}

} // namespace iceline::desktop
