#pragma once

#include "desktop/LeagueWindow.h"
#include "season/Options.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace iceline::desktop {

/// The coaches, the length of the season, the move to the play-offs, the next season, the clearing of
/// statistics, copies of the league, and what the site tells of it.
class OptionsWindow : public LeagueWindow {
    Q_OBJECT

public:
    OptionsWindow(Application& application, WindowId id, Options& object);

protected:
    void refresh() override;

private:
    template <class Result>
    QPushButton* makeButton(const char* name, const QString& caption, Result (Options::*procedure)());
    QPushButton* makeSite();
    QGroupBox* makeCoaches();
    QLayout* makeInputRow(QGroupBox* box);
    QGroupBox* makeSeason();
    QGroupBox* makeClearing();
    void showClearedTeam();

    Options& object_;
    QComboBox* coaches_ = nullptr;
    QPlainTextEdit* coachList_ = nullptr;
    QLineEdit* newName_ = nullptr;
    QLabel* label3_ = nullptr;
    QLabel* label4_ = nullptr;
    QPushButton* create_ = nullptr;
    QPushButton* rename_ = nullptr;
    QLineEdit* currentLength_ = nullptr;
    QLineEdit* seasonName_ = nullptr;
    QComboBox* teams_ = nullptr;
    QLabel* clearedLogo_ = nullptr;
    QLabel* clearedName_ = nullptr;
    QLabel* clearedLogo2_ = nullptr;
};

} // namespace iceline::desktop
