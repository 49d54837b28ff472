#pragma once

#include "desktop/Desk.h"

#include <QTimer>
#include <QWidget>

class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace iceline::desktop {

/// The main window: the catalogue of the other windows, "Generate Webpages" and "E&xit". It waits hidden
/// until the splash window has rolled its credits.
class WelcomeWindow : public QWidget {
    Q_OBJECT

public:
    explicit WelcomeWindow(Application& application);

    Desk& desk() { return desk_; }

    /// Starts to wait for the end of the splash window; `shown` runs when the main window shows.
    void waitForSplash(std::function<void()> shown);

protected:
    /// Closes every other window and ends the program.
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    QListWidget* makeCatalogue();
    void openRow(QListWidgetItem* row);

    Application& app_;
    Desk desk_;
    QTimer timer1_;
};

} // namespace iceline::desktop
