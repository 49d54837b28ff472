#pragma once

#include "site/SiteSettings.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;

namespace iceline {
class Application;
}

namespace iceline::desktop {

/// What the league tells of its site: a field for each setting, named by its key. OK stores them, and the
/// dialog stays with the reason beside the fields when one of them cannot be.
class SiteSettingsDialog : public QDialog {
    Q_OBJECT

public:
    /// Throws FileError when the settings cannot be read.
    SiteSettingsDialog(Application& application, QWidget* parent);

    void accept() override;

private:
    Application& app_;
    std::array<QLineEdit*, AllSiteSettings.size()> fields_{};
    QLabel* problem_;
};

} // namespace iceline::desktop
