#pragma once

#include "desktop/PreviewServer.h"
#include "desktop/ScrolledPage.h"
#include "desktop/WindowManager.h"

#include <QTimer>
#include <QWidget>

class QFrame;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace iceline::desktop {

/// The main window: the catalogue of the other windows, "Generate Webpages", "Preview Site" and "E&xit". It
/// waits hidden until the splash window has rolled its credits.
class WelcomeWindow : public QWidget {
    Q_OBJECT

public:
    WelcomeWindow(Application& application, PreviewServer& preview);

    /// Starts to wait for the end of the splash window; `shown` runs when the main window shows.
    void waitForSplash(std::function<void()> shown);

protected:
    /// Closes every other window and ends the program.
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    QListWidget* makeCatalogue();
    QFrame* makeTrophies();
    QPushButton* addButton(QLayout& layout, const QString& name, const QString& caption);
    void openRow(QListWidgetItem* row);

    /// Shows the site in the browser.
    void previewSite();

    Application& app_;
    PreviewServer& preview_;
    WindowManager windows_;
    ScrolledPage page_{this};
    QTimer timer1_{this};
};

} // namespace iceline::desktop
