#pragma once

#include "files/Files.h"
#include "files/Journal.h"
#include "files/StagedFiles.h"
#include "shell/ApplicationState.h"
#include "shell/Platform.h"
#include "shell/Windows.h"

#include <memory>
#include <vector>

namespace iceline {

class HistoryLog;

/// One run of the program on one league: its files, its platform, the shared state and the windows.
class Application {
public:
    /// `disk` is the league folder; `siteTemplate` the site as delivered with the program. All must outlive
    /// the application, which opens the windows of `catalogue`.
    Application(Files& disk, Files& siteTemplate, Platform& platform, WindowCatalogue catalogue);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// The files that count for whoever asks now: those of the operation in hand, or the disk.
    Files& files() { return *inForce_.back(); }

    Files& siteTemplate() { return siteTemplate_; }
    Platform& platform() { return platform_; }
    Journal& journal() { return journal_; }
    HistoryLog& log() { return *log_; }
    Windows& windows() { return windows_; }

    /// True while an Operation lives.
    bool operationInHand() const { return operations_ > 0; }

    /// How many operations of this run have changed the league.
    int operationsCommitted() const { return committed_; }

    /// From now on the league is only looked at: every operation is refused.
    void lookOnly() { lookOnly_ = true; }

    /// Throws FileError when the league is only looked at.
    void requireChangeable() const;

    ApplicationState state;

private:
    friend class FilesInForce;
    friend class Operation;

    std::vector<Files*> inForce_;
    Files& siteTemplate_;
    Platform& platform_;
    Journal journal_;
    std::unique_ptr<HistoryLog> log_;
    Windows windows_;
    int operations_ = 0;
    int committed_ = 0;
    bool lookOnly_ = false;
};

/// Puts other files in force while it lives.
class FilesInForce {
public:
    FilesInForce(Application& application, Files& files) : app_(application) {
        app_.inForce_.push_back(&files);
    }
    ~FilesInForce() { app_.inForce_.pop_back(); }
    FilesInForce(const FilesInForce&) = delete;
    FilesInForce& operator=(const FilesInForce&) = delete;

private:
    Application& app_;
};

/// An operation that changes the league. While it lives everything works on staged files; commit() brings
/// them to the disk whole or not at all, and an operation that ends without leaves the disk as it was. An
/// operation begun within another is staged on top of that one's files, and its commit goes into them.
class Operation {
public:
    /// Throws FileError when the league is only looked at.
    explicit Operation(Application& application);
    ~Operation() { --app_.operations_; }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    /// Throws FileError when the changes cannot reach the disk. Afterwards the operation goes on from what it
    /// has committed.
    void commit();

private:
    Application& app_;
    bool outermost_;
    Files& under_;
    StagedFiles staged_;
    FilesInForce inForce_;
};

} // namespace iceline
