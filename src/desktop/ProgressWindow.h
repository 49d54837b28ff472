#pragma once

#include "shell/Platform.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace iceline::desktop {

/// Shows how far a run is. While it shows, no other window of the program answers. Only its owner takes it
/// away, neither Esc nor its close button; a run that can be stopped has a button "Cancel" for that, which no
/// key presses that was meant for a question.
class ProgressWindow : public QDialog {
    Q_OBJECT

public:
    ProgressWindow(const Progress& progress, QWidget* parent);

    void setProgress(const Progress& progress);

    /// The user has pressed "Cancel".
    bool isCancelled() const { return cancelled_; }

    void reject() override {}

private:
    void addCancelButton();

    QLabel* item_;
    QProgressBar* bar_;
    bool cancelled_ = false;
};

} // namespace iceline::desktop
