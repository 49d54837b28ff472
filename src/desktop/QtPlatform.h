#pragma once

#include "shell/Platform.h"

#include <QElapsedTimer>
#include <QPointer>

#include <memory>

class QString;
class QWidget;

namespace iceline::desktop {

/// A text of the league as Qt shows it: the league's files hold bytes, which are taken as UTF-8.
QString toQt(std::string_view text);
std::string fromQt(const QString& text);

class ProgressWindow;

/// The platform of the desktop: message boxes, dialogs and pointer of Qt. A run shows its progress once it
/// has taken a moment. Until then it handles no event, and from then on only its progress window answers.
class QtPlatform : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;

    Answer ask(const Message& message) override;
    std::optional<std::string> chooseFile(const std::string& title,
                                          const std::vector<FileFilter>& filters) override;
    std::optional<std::string> chooseFolder(const std::string& title) override;
    void setBusy(bool busy) override;
    double random() override;
    bool showProgress(const Progress& progress) override;
    void endProgress() override;

    /// Stops the run in progress, if there is one, after the item in hand.
    void stopRun() { runStopped_ = progress_ != nullptr; }

    /// Ends the program with that exit status, after stopping the run in progress. From now on messages go to
    /// standard error, and questions count as not agreed to.
    void endProgram(int status);

private:
    /// The window that a message belongs to, so that it shows above it; null when none shows.
    QWidget* windowInFront() const;

    std::unique_ptr<ProgressWindow> progress_;
    QPointer<QWidget> runsFrom_; ///< the window in which the last run began
    QElapsedTimer sinceBegin_;   ///< of the run
    bool runStopped_ = false;
    bool programEnds_ = false;
};

} // namespace iceline::desktop
