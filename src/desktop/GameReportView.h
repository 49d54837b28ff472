#pragma once

#include "games/GameReport.h"
#include "games/ReportTables.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace iceline::desktop {

class GameFiguresPanel;
class GameRosterPanel;

/// A whole game: rosters, score, figures, stars, crowd meter, summaries.
class GameReportView : public QWidget {
    Q_OBJECT

public:
    explicit GameReportView(QWidget* parent);

    void show(const GameReport& report);

private:
    struct StarLabels {
        QLabel* name = nullptr;
        QLabel* team = nullptr;
    };

    QWidget* makeRoster(const char* frameName, const QString& caption, const QString& team,
                        const char* banner, GameRosterPanel*& panel);
    QLayout* makeCentre();
    QLayout* makeScore();
    QLayout* makeFigures();
    QWidget* makeStars();
    QWidget* makeSummary(const char* frameName, const QString& caption, const char* textName,
                         QPlainTextEdit*& text);

    GameRosterPanel* homeRoster_ = nullptr;
    GameRosterPanel* awayRoster_ = nullptr;
    GameFiguresPanel* homeFigures_ = nullptr;
    GameFiguresPanel* awayFigures_ = nullptr;
    QLabel* homeScore_ = nullptr;
    QLabel* awayScore_ = nullptr;
    QLabel* finalMark_ = nullptr;
    std::array<StarLabels, StarPlaces.size()> stars_;
    QPlainTextEdit* scoring_ = nullptr;
    QPlainTextEdit* penalties_ = nullptr;
};

} // namespace iceline::desktop
