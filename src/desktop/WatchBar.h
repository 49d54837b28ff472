#pragma once

#include "watch/FolderWatch.h"
#include "watch/GameWatch.h"

#include <QFrame>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QPushButton;

namespace iceline {
class Application;
}

namespace iceline::desktop {

/// A quiet bar that shows while a folder is watched, and offers each finished game that comes there.
class WatchBar : public QFrame {
    Q_OBJECT

public:
    /// `import` imports the game of a save state.
    WatchBar(Application& application, std::function<void(const std::string&)> import, QWidget* parent);

    /// Watches the folder that the user picks.
    void chooseFolder();

    /// Looks what has come into the folder; runs by itself while one is watched. Waits while a message or a
    /// run is on the screen.
    void look(FolderWatch::Time now);

private:
    QPushButton* addButton(const char* name, const QString& caption, void (WatchBar::*click)());
    void stop();
    void importGame();
    void ignore();

    /// Adds what there is to say of the files to what the bar shows, in the place of what was said of them.
    void take(const std::vector<std::string>& paths);
    void lookAgain();
    void showFront();

    Application& app_;
    std::function<void(const std::string&)> import_;
    std::optional<FolderWatch> folder_;
    GameWatch games_;
    std::vector<WatchedGame> waiting_; ///< the bar shows the first
    int committed_ = 0;                ///< operations of this run that `waiting_` takes in
    QTimer timer_;
    QLabel* text_ = nullptr;
    QPushButton* importButton_ = nullptr;
    QPushButton* ignoreButton_ = nullptr;
};

} // namespace iceline::desktop
