#pragma once

#include "desktop/HistoryWindow.h"
#include "desktop/MainMenu.h"
#include "desktop/PreviewServer.h"
#include "desktop/ScrolledPage.h"
#include "desktop/StatExtractorWindow.h"
#include "desktop/WatchBar.h"
#include "desktop/WindowManager.h"

#include <QTimer>
#include <QWidget>

class QFrame;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace iceline::desktop {

/// The main window: menus, the catalogue of the other windows, "Generate Webpages", "Preview Site" and
/// "E&xit". It waits hidden until the splash window has rolled its credits.
class WelcomeWindow : public QWidget {
    Q_OBJECT

public:
    WelcomeWindow(Application& application, PreviewServer& preview);

    /// Starts to wait for the end of the splash window; `shown` runs when the main window shows.
    void waitForSplash(std::function<void()> shown);

    /// Shows the game of a save state in the game window.
    void showGame(const std::string& path) {
        guarded(this, [&] { gameWindow().showGame(path); });
    }

protected:
    /// Closes every other window and ends the program.
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void makeMenus();
    void addWindowsTo(QMenu& menu);
    QListWidget* makeCatalogue();
    QFrame* makeTrophies();
    QPushButton* addButton(QLayout& layout, const QString& name, const QString& caption);
    void openRow(QListWidgetItem* row);

    /// The game window, opened or brought to the front.
    StatExtractorWindow& gameWindow();
    void inGameWindow(void (StatExtractorWindow::*action)());

    /// By the choices that the game window has.
    void importGame(const std::string& path);

    void generateWebpages();

    /// Shows the site in the browser.
    void previewSite();

    void showHistory();

    Application& app_;
    PreviewServer& preview_;
    WindowManager windows_;
    HistoryWindow history_;
    ScrolledPage page_{this};
    MainMenu* menus_;
    WatchBar* watch_;
    QTimer timer1_{this};
};

} // namespace iceline::desktop
