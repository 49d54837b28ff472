#include "desktop/StatExtractorWindow.h"

#include "desktop/Controls.h"
#include "desktop/GamePanels.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

/// The caption of a file path that fits beside the buttons: its middle gives way.
QString shortened(const QLabel& label, const QString& path) {
    return label.fontMetrics().elidedText(path, Qt::ElideMiddle, label.maximumWidth());
}

} // namespace

StatExtractorWindow::StatExtractorWindow(Application& application, WindowId id, StatExtractor& object)
    : LeagueWindow(application, id), object_(object) {
    auto* rows = new QVBoxLayout(page());
    rows->setContentsMargins(10, 8, 10, 8);
    rows->setSpacing(4);
    rows->addLayout(makeCommands());
    rows->addLayout(makeChoices());
    auto* game = new QHBoxLayout;
    game->addWidget(
        makeRoster("Frame2", QStringLiteral("Away Team"), QStringLiteral("Team2"), "AwayTeam", awayRoster_),
        1);
    game->addLayout(makeCentre());
    game->addWidget(
        makeRoster("Frame1", QStringLiteral("Home Team"), QStringLiteral("Team1"), "HomeTeam", homeRoster_),
        1);
    rows->addLayout(game);
    auto* summaries = new QHBoxLayout;
    summaries->addWidget(
        makeSummary("Frame11", QStringLiteral("Scoring Summary"), "ScoringSummary", scoring_));
    summaries->addWidget(
        makeSummary("Frame12", QStringLiteral("Penalty Summary"), "PenaltySummary", penalties_));
    rows->addLayout(summaries, 1);
    follow(object_);
}

QLayout* StatExtractorWindow::makeCommands() {
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* name, const QString& caption, void (StatExtractorWindow::*click)()) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this, click);
        row->addWidget(button);
        return button;
    };
    add("LoadStats", QStringLiteral("Select Game"), &StatExtractorWindow::selectGame);
    add("ImportStats", QStringLiteral("Import Game"), &StatExtractorWindow::importGame)
        ->setProperty("role", QStringLiteral("main"));
    add("ImportFolder", QStringLiteral("Import Folder"), &StatExtractorWindow::importFolder);
    fileName_ = textLabel(QStringLiteral("FileName"), this);
    fileName_->setMaximumWidth(60 * fontMetrics().averageCharWidth());
    row->addWidget(fileName_, 1);
    row->addWidget(exitButton("Command2", this));
    return row;
}

void StatExtractorWindow::showGame(const std::string& path) {
    run([&] { object_.showGame(path); });
}

void StatExtractorWindow::selectGame() {
    run([this] { object_.LoadStats_Click(); });
}

void StatExtractorWindow::importGame() {
    run([this] { object_.ImportStats_Click(); });
}

void StatExtractorWindow::importFolder() {
    run([this] { object_.ImportFolder_Click(); });
}

QLayout* StatExtractorWindow::makeChoices() {
    auto* row = new QHBoxLayout;
    const auto option = [&](const char* name, const QString& caption) {
        auto* button = new QRadioButton(caption, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QRadioButton::clicked, this, [this] {
            object_.Season = season_->isChecked();
            object_.Exhibition = exhibition_->isChecked();
        });
        row->addWidget(button);
        return button;
    };
    season_ = option("Season", QStringLiteral("Season"));
    exhibition_ = option("Exhibition", QStringLiteral("Exhibition"));
    row->addStretch();
    row->addWidget(headLabel(QStringLiteral("Away coach"), this));
    row->addWidget(awayCoaches_ = makeCoachList("T2Coach", &StatExtractor::T2Coach_Click));
    row->addSpacing(16);
    row->addWidget(headLabel(QStringLiteral("Home coach"), this));
    row->addWidget(homeCoaches_ = makeCoachList("T1Coach", &StatExtractor::T1Coach_Click));
    return row;
}

QComboBox* StatExtractorWindow::makeCoachList(const char* name, void (StatExtractor::*choose)(int)) {
    QComboBox* list = choiceList(name, QStringLiteral("Select Coach"), this);
    for (const std::string& coach : object_.content().coaches)
        list->addItem(toQt(coach));
    connect(list, &QComboBox::activated, this, [this, choose](int index) { (object_.*choose)(index); });
    return list;
}

QWidget* StatExtractorWindow::makeRoster(const char* frameName, const QString& caption, const QString& team,
                                         const char* banner, GameRosterPanel*& panel) {
    QGroupBox* box = frame(frameName, caption, this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 4, 4, 4);
    panel = new GameRosterPanel(team, banner, box);
    column->addWidget(panel);
    return box;
}

QLayout* StatExtractorWindow::makeCentre() {
    auto* column = new QVBoxLayout;
    column->addLayout(makeScore());
    column->addLayout(makeFigures());
    column->addWidget(makeStars());
    QGroupBox* crowd = frame("Frame4", QStringLiteral("Crowd Meter"), this);
    auto* meter = new QHBoxLayout(crowd);
    meter->setContentsMargins(4, 2, 4, 2);
    meter->addStretch();
    meter->addWidget(figureLabel(QStringLiteral("PeakCrowdMeter"), crowd));
    meter->addWidget(headLabel(QStringLiteral("dB"), crowd));
    meter->addStretch();
    column->addWidget(crowd);
    column->addStretch();
    return column;
}

QLayout* StatExtractorWindow::makeScore() {
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* name, const char* role) {
        QLabel* label = figureLabel(QLatin1String(name), this);
        label->setProperty("role", QLatin1String(role));
        label->setAlignment(Qt::AlignCenter);
        row->addWidget(label);
        return label;
    };
    row->addStretch();
    row->setSpacing(24);
    awayScore_ = add("DisplayAwayScore", "score");
    finalMark_ = add("FOTBox", "head");
    homeScore_ = add("DisplayHomeScore", "score");
    row->addStretch();
    return row;
}

QLayout* StatExtractorWindow::makeFigures() {
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* frameName, const QString& caption, const QString& team) {
        QGroupBox* box = frame(frameName, caption, this);
        auto* column = new QVBoxLayout(box);
        column->setContentsMargins(2, 4, 2, 4);
        auto* panel = new GameFiguresPanel(team, box);
        column->addWidget(panel);
        row->addWidget(box);
        return panel;
    };
    awayFigures_ = add("Frame7", QStringLiteral("Away Team"), QStringLiteral("Team2"));
    auto* captions = new QVBoxLayout;
    captions->setContentsMargins(0, 22, 0, 4);
    captions->addWidget(new GameFigureCaptions(this));
    row->addLayout(captions);
    homeFigures_ = add("Frame5", QStringLiteral("Home Team"), QStringLiteral("Team1"));
    return row;
}

QWidget* StatExtractorWindow::makeStars() {
    QGroupBox* box = frame("Frame9", QStringLiteral("Three Star Awards"), this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setVerticalSpacing(2);
    for (std::size_t k = 0; k < StarPlaces.size(); ++k) {
        const StarPlace& place = StarPlaces[k];
        stars_[k] = {textLabel(toQt(place.nameControl), box), pictureLabel(toQt(place.teamControl), box)};
        stars_[k].team->setFixedSize(120, 24);
        const int row = static_cast<int>(k);
        grid->addWidget(headLabel(toQt(place.caption), box), row, 0);
        grid->addWidget(stars_[k].team, row, 1);
        grid->addWidget(stars_[k].name, row, 2);
    }
    grid->setColumnStretch(2, 1);
    return box;
}

QWidget* StatExtractorWindow::makeSummary(const char* frameName, const QString& caption, const char* textName,
                                          QPlainTextEdit*& text) {
    QGroupBox* box = frame(frameName, caption, this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(2, 4, 2, 2);
    text = new QPlainTextEdit(box);
    text->setObjectName(QLatin1String(textName));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(8);
    text->setFont(font);
    text->setMinimumHeight(90);
    column->addWidget(text);
    return box;
}

void StatExtractorWindow::refresh() {
    setWindowTitle(toQt(object_.caption()));
    const StatExtractor::Content& content = object_.content();
    fileName_->setText(shortened(*fileName_, toQt(content.FileName)));
    fileName_->setToolTip(toQt(content.FileName));
    showChoices();
    if (content.report)
        showReport(*content.report);
    scoring_->setPlainText(toQt(content.ScoringSummary));
    penalties_->setPlainText(toQt(content.PenaltySummary));
}

void StatExtractorWindow::showChoices() {
    const QSignalBlocker home(homeCoaches_);
    const QSignalBlocker away(awayCoaches_);
    homeCoaches_->setCurrentIndex(object_.T1Coach);
    awayCoaches_->setCurrentIndex(object_.T2Coach);
    season_->setChecked(object_.Season);
    exhibition_->setChecked(object_.Exhibition);
}

void StatExtractorWindow::showReport(const GameReport& report) {
    homeRoster_->show(report.home);
    awayRoster_->show(report.away);
    homeFigures_->show(report.home);
    awayFigures_->show(report.away);
    homeScore_->setText(QString::number(report.home.stats.Goals));
    awayScore_->setText(QString::number(report.away.stats.Goals));
    finalMark_->setText(toQt(report.FinalMark));
    for (std::size_t k = 0; k < stars_.size(); ++k) {
        stars_[k].name->setText(toQt(report.Star[k].Name));
        stars_[k].team->setPixmap(pictures::teamNameMini(report.Star[k].Team));
    }
}

} // namespace iceline::desktop
