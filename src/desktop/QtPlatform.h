#pragma once

#include "shell/Platform.h"

#include <QElapsedTimer>

#include <memory>

class QString;
class QWidget;

namespace iceline::desktop {

/// A text of the league as Qt shows it: the league's files hold bytes, which are taken as UTF-8.
QString toQt(std::string_view text);
std::string fromQt(const QString& text);

class ProgressWindow;

/// The window that a message belongs to, so that it shows above it; null when none shows.
QWidget* windowInFront();

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

private:
    std::unique_ptr<ProgressWindow> progress_;
    QElapsedTimer sinceBegin_; ///< of the run
};

} // namespace iceline::desktop
