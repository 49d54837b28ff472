#include "desktop/StatExtractorWindow.h"

#include "desktop/Controls.h"
#include "desktop/GameReportView.h"
#include "desktop/QtPlatform.h"
#include "files/FileError.h"
#include "history/ImportPreview.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

/// Lines that the outlook shows at the most; the pointer over it shows them all.
constexpr int LinesOfOutlook = 4;

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
    rows->addWidget(report_ = new GameReportView(this), 1);
    rows->addWidget(makeOutlook());
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
    runAndShow([&] { object_.showGame(path); });
}

void StatExtractorWindow::importSlot(const std::string& path) {
    runAndShow([&] {
        object_.showGame(path);
        object_.IsSlot = true;
        if (object_.lacksCoach()) {
            object_.Exhibition = false;
            object_.Season = true;
        }
        object_.ImportStats_Click();
    });
}

void StatExtractorWindow::selectGame() {
    runAndShow([this] { object_.LoadStats_Click(); });
}

void StatExtractorWindow::importGame() {
    runAndShow([this] { object_.ImportStats_Click(); });
}

void StatExtractorWindow::importFolder() {
    runAndShow([this] { object_.ImportFolder_Click(); });
}

/// What an import would do, below the game.
QWidget* StatExtractorWindow::makeOutlook() {
    QGroupBox* box = frame("Outlook", QStringLiteral("Import"), this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(8, 2, 8, 4);
    row->setSpacing(24);
    standing_ = textLabel(QStringLiteral("Standing"), box);
    standing_->setProperty("role", QStringLiteral("head"));
    outlook_ = textLabel(QStringLiteral("OutlookText"), box);
    outlook_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    outlook_->setMinimumHeight(LinesOfOutlook * fontMetrics().lineSpacing());
    row->addWidget(standing_);
    row->addWidget(outlook_, 1);
    return box;
}

/// Works it out for the game in hand, by the choices as they are.
void StatExtractorWindow::showOutlook() {
    committedAtOutlook_ = app_.operationsCommitted();
    QStringList lines;
    try {
        if (object_.GameLoaded)
            lines = outlook();
    } catch (const FileError& error) {
        lines << toQt(error.what());
    }
    outlook_->setToolTip(lines.join(u'\n'));
    if (lines.size() > LinesOfOutlook)
        lines = lines.mid(0, LinesOfOutlook - 1)
                << QStringLiteral("\u2026 and %1 more").arg(lines.size() - LinesOfOutlook + 1);
    outlook_->setText(lines.join(u'\n'));
}

QStringList StatExtractorWindow::outlook() {
    QStringList lines;
    const ImportPreview preview = previewImport(app_);
    if (preview.doubt)
        lines << toQt(preview.doubt->text);
    for (const std::string& line : linesOf(preview))
        lines << toQt(line);
    return lines;
}

bool StatExtractorWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !isRunning_ &&
        app_.operationsCommitted() != committedAtOutlook_)
        showOutlook();
    return LeagueWindow::event(event);
}

QLayout* StatExtractorWindow::makeChoices() {
    auto* row = new QHBoxLayout;
    const auto option = [&](const char* name, const QString& caption) {
        auto* button = new QRadioButton(caption, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QRadioButton::clicked, this, [this] {
            object_.Season = season_->isChecked();
            object_.Exhibition = exhibition_->isChecked();
            showOutlook();
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
    connect(list, &QComboBox::activated, this, [this, choose](int index) {
        (object_.*choose)(index);
        showOutlook();
    });
    return list;
}

void StatExtractorWindow::refresh() {
    setWindowTitle(toQt(object_.caption()));
    const StatExtractor::Content& content = object_.content();
    fileName_->setText(shortened(*fileName_, toQt(content.FileName)));
    fileName_->setToolTip(toQt(content.FileName));
    showChoices();
    if (content.report)
        report_->show(*content.report);
    standing_->setText(toQt(object_.standing()));
}

void StatExtractorWindow::showChoices() {
    const QSignalBlocker home(homeCoaches_);
    const QSignalBlocker away(awayCoaches_);
    homeCoaches_->setCurrentIndex(object_.T1Coach);
    awayCoaches_->setCurrentIndex(object_.T2Coach);
    season_->setChecked(object_.Season);
    exhibition_->setChecked(object_.Exhibition);
}

} // namespace iceline::desktop
