#pragma once

#include "shell/Platform.h"

#include <QPointer>

class QProgressDialog;
class QString;

namespace iceline::desktop {

/// A text of the league as Qt shows it: the league's files hold bytes, which are taken as UTF-8.
QString toQt(std::string_view text);
std::string fromQt(const QString& text);

/// The platform of the desktop: message boxes, dialogs and pointer of Qt.
class QtPlatform : public Platform {
public:
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
    QPointer<QProgressDialog> progress_;
};

} // namespace iceline::desktop
