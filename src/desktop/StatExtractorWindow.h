#pragma once

#include "desktop/LeagueWindow.h"
#include "games/ReportTables.h"
#include "games/StatExtractor.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QRadioButton;
class QVBoxLayout;

namespace iceline::desktop {

class GameFiguresPanel;
class GameRosterPanel;

/// The game window: reads a game, shows it whole, and imports it.
class StatExtractorWindow : public LeagueWindow {
    Q_OBJECT

public:
    StatExtractorWindow(Application& application, WindowId id, StatExtractor& object);

    /// Reads and shows the game of a save state.
    void showGame(const std::string& path);

    /// What the buttons do.
    void selectGame();
    void importGame();
    void importFolder();

protected:
    void refresh() override;

private:
    struct StarLabels {
        QLabel* name = nullptr;
        QLabel* team = nullptr;
    };

    QLayout* makeCommands();
    QLayout* makeChoices();
    QComboBox* makeCoachList(const char* name, void (StatExtractor::*choose)(int));
    QWidget* makeRoster(const char* frameName, const QString& caption, const QString& team,
                        const char* banner, GameRosterPanel*& panel);
    QLayout* makeCentre();
    QLayout* makeScore();
    QLayout* makeFigures();
    QWidget* makeStars();
    QWidget* makeSummary(const char* frameName, const QString& caption, const char* textName,
                         QPlainTextEdit*& text);
    void showChoices();
    void showReport(const GameReport& report);

    StatExtractor& object_;
    GameRosterPanel* homeRoster_ = nullptr;
    GameRosterPanel* awayRoster_ = nullptr;
    GameFiguresPanel* homeFigures_ = nullptr;
    GameFiguresPanel* awayFigures_ = nullptr;
    QLabel* fileName_ = nullptr;
    QLabel* homeScore_ = nullptr;
    QLabel* awayScore_ = nullptr;
    QLabel* finalMark_ = nullptr;
    std::array<StarLabels, StarPlaces.size()> stars_;
    QComboBox* homeCoaches_ = nullptr;
    QComboBox* awayCoaches_ = nullptr;
    QRadioButton* season_ = nullptr;
    QRadioButton* exhibition_ = nullptr;
    QPlainTextEdit* scoring_ = nullptr;
    QPlainTextEdit* penalties_ = nullptr;
};

} // namespace iceline::desktop
