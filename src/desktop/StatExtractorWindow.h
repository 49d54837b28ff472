#pragma once

#include "desktop/LeagueWindow.h"
#include "games/StatExtractor.h"

#include <QScopedValueRollback>

class QComboBox;
class QLabel;
class QRadioButton;

namespace iceline::desktop {

class GameReportView;

/// The game window: reads a game, shows it whole and what its import would do, and imports it.
class StatExtractorWindow : public LeagueWindow {
    Q_OBJECT

public:
    StatExtractorWindow(Application& application, WindowId id, StatExtractor& object);

    /// Reads and shows the game of a save state.
    void showGame(const std::string& path);

    /// Shows and imports the game of a save state that is written again and again: as a game of the season,
    /// unless an exhibition of a coach is chosen.
    void importSlot(const std::string& path);

    /// What the buttons do.
    void selectGame();
    void importGame();
    void importFolder();

protected:
    void refresh() override;
    bool event(QEvent* event) override;

private:
    QLayout* makeCommands();
    QLayout* makeChoices();
    QComboBox* makeCoachList(const char* name, void (StatExtractor::*choose)(int));
    QWidget* makeOutlook();
    void showChoices();
    void showOutlook();
    QStringList outlook();

    template <class Procedure>
    void runAndShow(Procedure procedure) {
        {
            const QScopedValueRollback running(isRunning_, true);
            run(procedure);
        }
        showOutlook();
    }

    StatExtractor& object_;
    GameReportView* report_ = nullptr;
    QLabel* fileName_ = nullptr;
    QLabel* standing_ = nullptr;
    QLabel* outlook_ = nullptr;
    QComboBox* homeCoaches_ = nullptr;
    QComboBox* awayCoaches_ = nullptr;
    QRadioButton* season_ = nullptr;
    QRadioButton* exhibition_ = nullptr;
    int committedAtOutlook_ = 0; ///< operations of this run that the outlook takes in
    bool isRunning_ = false;     ///< a procedure is under way, which may show messages
};

} // namespace iceline::desktop
