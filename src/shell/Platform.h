#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// The buttons of a message box.
enum class Buttons { Ok, OkCancel, YesNo };

/// The button that was pressed. Closing a box counts as Cancel, or as No where there is no Cancel.
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct Message {
    std::string text; ///< lines are separated by '\n'
    Buttons buttons = Buttons::Ok;
    std::string title = "Iceline Scorebook";
    bool isWarning = false; ///< Yes is most likely a mistake: No is the default, and what a script answers
};

struct FileFilter {
    std::string caption; ///< "Game Save Files (*.gs*)"
    std::string pattern; ///< "*.gs*"
};

/// How far a long run is.
struct Progress {
    std::string title; ///< "Importing games"
    std::string item;  ///< what is in hand, a file name or a page
    int done = 0;
    int total = 0;            ///< 0 while it is not known
    bool cancellable = false; ///< the user may stop the run after the item in hand
};

/// All that the program asks of the machine it runs on, except files (Files).
class Platform {
public:
    virtual ~Platform() = default;

    /// Shows a message box and waits for its answer.
    virtual Answer ask(const Message& message) = 0;

    /// The file that the user picks in an open dialog, none when he cancels.
    virtual std::optional<std::string> chooseFile(const std::string& title,
                                                  const std::vector<FileFilter>& filters) = 0;

    /// The folder that the user picks, none when he cancels.
    virtual std::optional<std::string> chooseFolder(const std::string& title) = 0;

    /// Shows or takes away the hourglass pointer. Calls nest.
    virtual void setBusy(bool busy) = 0;

    /// A number in [0, 1), seeded from the clock.
    virtual double random() = 0;

    /// What the clock shows.
    virtual std::chrono::system_clock::time_point now() { return std::chrono::system_clock::now(); }

    /// Shows how far a run is; false once the user has asked to stop it.
    virtual bool showProgress(const Progress& progress) = 0;

    /// Takes the progress away.
    virtual void endProgress() = 0;

    /// A message box with OK alone.
    void say(const std::string& text) { ask({text}); }
};

/// The hourglass pointer while it lives.
class BusyPointer {
public:
    explicit BusyPointer(Platform& platform) : platform_(platform) { platform_.setBusy(true); }
    ~BusyPointer() { platform_.setBusy(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Platform& platform_;
};

/// The progress of one run while it lives.
class ProgressRun {
public:
    ProgressRun(Platform& platform, std::string title, int total, bool cancellable)
        : platform_(platform), progress_{std::move(title), "", 0, total, cancellable} {}
    ~ProgressRun() { platform_.endProgress(); }
    ProgressRun(const ProgressRun&) = delete;
    ProgressRun& operator=(const ProgressRun&) = delete;

    /// Says that `item` is in hand and the ones before it are done; false once the user has asked to stop.
    bool next(const std::string& item) {
        progress_.item = item;
        const bool goOn = platform_.showProgress(progress_);
        ++progress_.done;
        return goOn;
    }

private:
    Platform& platform_;
    Progress progress_;
};

} // namespace iceline
