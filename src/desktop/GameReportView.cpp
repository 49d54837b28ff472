#include "desktop/GameReportView.h"

#include "desktop/Controls.h"
#include "desktop/GamePanels.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "games/Summaries.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QPlainTextEdit>

namespace iceline::desktop {

GameReportView::GameReportView(QWidget* parent) : QWidget(parent) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(4);
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
}

QWidget* GameReportView::makeRoster(const char* frameName, const QString& caption, const QString& team,
                                    const char* banner, GameRosterPanel*& panel) {
    QGroupBox* box = frame(frameName, caption, this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 4, 4, 4);
    panel = new GameRosterPanel(team, banner, box);
    column->addWidget(panel);
    return box;
}

QLayout* GameReportView::makeCentre() {
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

QLayout* GameReportView::makeScore() {
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

QLayout* GameReportView::makeFigures() {
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

QWidget* GameReportView::makeStars() {
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

QWidget* GameReportView::makeSummary(const char* frameName, const QString& caption, const char* textName,
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

void GameReportView::show(const GameReport& report) {
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
    scoring_->setPlainText(toQt(scoringSummaryText(report)));
    penalties_->setPlainText(toQt(penaltySummaryText(report)));
}

} // namespace iceline::desktop
