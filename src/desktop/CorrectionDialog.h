#pragma once

#include "history/HistoryChanges.h"
#include "log/Entry.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace iceline::desktop {

/// Asks what a game should have been: its kind, its coaches, the save state.
class CorrectionDialog : public QDialog {
    Q_OBJECT

public:
    /// `title` is how the game is called, `coaches` are the league's.
    CorrectionDialog(const QString& title, const GameImported& game, const std::vector<std::string>& coaches,
                     QWidget* parent);

    /// What the user has changed; nothing else is set.
    Correction correction() const;

private:
    QComboBox* addCoaches(QFormLayout& form, const char* name, const QString& caption,
                          const std::vector<std::string>& coaches, const std::optional<std::string>& coach);
    QLayout* makeFileChoice();

    QComboBox* kind_ = nullptr;
    QComboBox* homeCoach_ = nullptr;
    QComboBox* awayCoach_ = nullptr;
    QLineEdit* file_ = nullptr;
};

} // namespace iceline::desktop
