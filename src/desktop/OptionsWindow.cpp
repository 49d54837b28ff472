#include "desktop/OptionsWindow.h"

#include "coaches/Coaches.h"
#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "desktop/SiteSettingsDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace iceline::desktop {

OptionsWindow::OptionsWindow(Application& application, WindowId id, Options& object)
    : LeagueWindow(application, id), object_(object) {
    auto* grid = new QGridLayout(page());
    grid->addWidget(makeCoaches(), 0, 0, 2, 1);
    grid->addWidget(makeSeason(), 0, 1);
    grid->addWidget(makeClearing(), 1, 1);
    grid->addWidget(makeSite(), 2, 0, Qt::AlignLeft);
    auto* last = new QHBoxLayout;
    last->addStretch();
    last->addWidget(makeButton("BackUp", QStringLiteral("Back Up"), &Options::BackUp_Click));
    last->addWidget(exitButton("Command3", this));
    grid->addLayout(last, 2, 1);
    follow(object_);
}

template <class Result>
QPushButton* OptionsWindow::makeButton(const char* name, const QString& caption,
                                       Result (Options::*procedure)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this,
            [this, procedure] { run([this, procedure] { (object_.*procedure)(); }); });
    return button;
}

QPushButton* OptionsWindow::makeSite() {
    auto* button = new QPushButton(QStringLiteral("Web Site..."), this);
    button->setObjectName(QStringLiteral("WebSite"));
    connect(button, &QPushButton::clicked, this,
            [this] { run([this] { SiteSettingsDialog(app_, this).exec(); }); });
    return button;
}

QGroupBox* OptionsWindow::makeCoaches() {
    QGroupBox* box = frame("Frame3", QStringLiteral("Create - A - Coach"), this);
    auto* columns = new QHBoxLayout(box);
    auto* commands = new QVBoxLayout;
    coaches_ = choiceList("Combo1", QStringLiteral("Select Coach"), box);
    coaches_->setMinimumContentsLength(CoachNameLimit);
    connect(coaches_, &QComboBox::activated, this, [this](int index) { object_.Combo1 = index; });
    commands->addWidget(coaches_);
    commands->addWidget(makeButton("NewCoach", QStringLiteral("Add New Coach"), &Options::NewCoach_Click));
    commands->addWidget(
        makeButton("EditCoach", QStringLiteral("Edit Coach's Info"), &Options::EditCoach_Click));
    commands->addWidget(
        makeButton("DeleteCoach", QStringLiteral("Delete Coach"), &Options::DeleteCoach_Click));
    commands->addWidget(
        makeButton("CoachTeam", QStringLiteral("Clear Coach's Stats"), &Options::CoachTeam_Click));
    commands->addLayout(makeInputRow(box));
    commands->addStretch();
    columns->addLayout(commands);
    auto* list = new QVBoxLayout;
    QLabel* head = headLabel(QStringLiteral("Coach List:"), box, Qt::AlignLeft);
    head->setObjectName(QStringLiteral("Label2"));
    list->addWidget(head);
    coachList_ = new QPlainTextEdit(box);
    coachList_->setObjectName(QStringLiteral("Text3"));
    coachList_->setReadOnly(true);
    coachList_->setMinimumSize(180, 300);
    list->addWidget(coachList_);
    columns->addLayout(list);
    return box;
}

QLayout* OptionsWindow::makeInputRow(QGroupBox* box) {
    auto* rows = new QVBoxLayout;
    label3_ = headLabel(QStringLiteral("Enter Coach name:"), box, Qt::AlignLeft);
    label3_->setObjectName(QStringLiteral("Label3"));
    newName_ = new QLineEdit(box);
    newName_->setObjectName(QStringLiteral("NewC"));
    newName_->setMaxLength(CoachNameLimit);
    connect(newName_, &QLineEdit::textEdited, this,
            [this](const QString& text) { object_.NewC = fromQt(text); });
    connect(newName_, &QLineEdit::returnPressed, this,
            [this] { (object_.content().Command1Visible ? create_ : rename_)->click(); });
    label4_ = headLabel(QStringLiteral("(Max 20 characters, no spaces)"), box, Qt::AlignLeft);
    label4_->setObjectName(QStringLiteral("Label4"));
    create_ = makeButton("Command1", QStringLiteral("Create"), &Options::Command1_Click);
    rename_ = makeButton("Command2", QStringLiteral("Rename"), &Options::Command2_Click);
    for (QWidget* widget : std::initializer_list<QWidget*>{label3_, newName_, label4_, create_, rename_})
        rows->addWidget(widget);
    return rows;
}

QGroupBox* OptionsWindow::makeSeason() {
    QGroupBox* box = frame("Frame2", QStringLiteral("Season Configuration"), this);
    auto* grid = new QGridLayout(box);
    const auto addField = [&](int row, const char* labelName, const QString& caption, const char* fieldName) {
        QLabel* label = headLabel(caption, box, Qt::AlignLeft | Qt::AlignVCenter);
        label->setObjectName(QLatin1String(labelName));
        grid->addWidget(label, row, 0);
        auto* field = new QLineEdit(box);
        field->setObjectName(QLatin1String(fieldName));
        field->setMaximumWidth(90);
        grid->addWidget(field, row, 1);
        return field;
    };
    currentLength_ = addField(0, "Label5", QStringLiteral("Current Season Length"), "CurrentSeasonLength");
    currentLength_->setReadOnly(true);
    QLineEdit* length = addField(1, "Label1", QStringLiteral("Season Length"), "SeasonLength");
    connect(length, &QLineEdit::textEdited, this,
            [this](const QString& text) { object_.SeasonLength = fromQt(text); });
    grid->addWidget(makeButton("EnterSeasonLength", QStringLiteral("Adjust Season Length"),
                               &Options::EnterSeasonLength_Click),
                    1, 2);
    grid->addWidget(
        makeButton("GoToPlayoffs", QStringLiteral("Go to Playoffs"), &Options::GoToPlayoffs_Click), 2, 2);
    seasonName_ = addField(3, "SeasonNameLabel", QStringLiteral("Name of This Season"), "SeasonName");
    connect(seasonName_, &QLineEdit::textEdited, this,
            [this](const QString& text) { object_.SeasonName = fromQt(text); });
    grid->addWidget(makeButton("NewSeason", QStringLiteral("New Season"), &Options::NewSeason_Click), 3, 2);
    grid->setColumnStretch(3, 1);
    return box;
}

QGroupBox* OptionsWindow::makeClearing() {
    QGroupBox* box = frame("Frame4", QStringLiteral("Clear Stats"), this);
    auto* rows = new QVBoxLayout(box);
    auto* choice = new QHBoxLayout;
    teams_ = teamList("ClearTeamSelect", QStringLiteral("Select Your Team Here"), box);
    teams_->addItem(toQt(TeamAbbr[AllTeams]));
    connect(teams_, &QComboBox::activated, this, [this](int index) {
        object_.ClearTeamSelect = index;
        object_.ClearTeamSelect_Click();
    });
    choice->addWidget(teams_);
    choice->addWidget(makeButton("Command8", QStringLiteral("&Clear Stats"), &Options::Command8_Click));
    choice->addStretch();
    rows->addLayout(choice);
    auto* team = new QHBoxLayout;
    clearedLogo_ = pictureLabel(QStringLiteral("ClearSelectedLogo"), box);
    clearedName_ = pictureLabel(QStringLiteral("ClearSelectedName"), box);
    clearedLogo2_ = pictureLabel(QStringLiteral("ClearSelectedLogo2"), box);
    for (QLabel* picture : {clearedLogo_, clearedName_, clearedLogo2_})
        team->addWidget(picture);
    for (QLabel* logo : {clearedLogo_, clearedLogo2_})
        logo->setMinimumSize(pictures::teamLogo(AllTeams).deviceIndependentSize().toSize());
    clearedName_->setMinimumSize(pictures::teamNameBig(AllTeams).deviceIndependentSize().toSize());
    rows->addLayout(team);
    rows->addStretch();
    return box;
}

void OptionsWindow::refresh() {
    const Options::Content& content = object_.content();
    QStringList names;
    for (const std::string& coach : content.coaches)
        names << toQt(coach);
    coaches_->clear();
    coaches_->addItems(names);
    coaches_->setCurrentIndex(object_.Combo1);
    coachList_->setPlainText(names.join(QLatin1Char('\n')));
    newName_->setText(toQt(object_.NewC));
    const bool opens = content.inputRowVisible() && newName_->isHidden();
    for (QWidget* widget : std::initializer_list<QWidget*>{label3_, newName_, label4_})
        widget->setVisible(content.inputRowVisible());
    if (opens)
        newName_->setFocus();
    create_->setVisible(content.Command1Visible);
    rename_->setVisible(content.Command2Visible);
    seasonName_->setText(toQt(object_.SeasonName));
    currentLength_->setText(toQt(content.CurrentSeasonLength));
    showClearedTeam();
}

void OptionsWindow::showClearedTeam() {
    if (object_.ClearTeamSelect == Options::NotChosen)
        return;
    const bool isOneTeam = object_.ClearTeamSelect < LeagueTeams;
    const TeamIndex team = isOneTeam ? TeamIndex(object_.ClearTeamSelect) : AllTeams;
    clearedName_->setPixmap(pictures::teamNameBig(team));
    for (QLabel* logo : {clearedLogo_, clearedLogo2_})
        logo->setPixmap(pictures::teamLogo(team));
}

} // namespace iceline::desktop
