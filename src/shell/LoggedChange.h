#pragma once

#include "log/HistoryLog.h"
#include "shell/Application.h"

#include <chrono>
#include <string>

namespace iceline {

/// A time as the history writes it: UTC, "2026-11-23T16:50:40Z".
std::string utcText(std::chrono::system_clock::time_point time);

/// An operation that the history of the league tells of: its line reaches the disk with its changes or not at
/// all. An operation that ends without a commit leaves the shared state, too, as it was.
class LoggedChange {
public:
    /// Begins the history of a league that has none. One that is damaged is put aside for a new one, when the
    /// user says so; FileError when he does not.
    explicit LoggedChange(Application& application);
    ~LoggedChange();
    LoggedChange(const LoggedChange&) = delete;
    LoggedChange& operator=(const LoggedChange&) = delete;

    /// As Operation::commit(). `seasonEnds` says that the operation turns the league to the play-offs.
    void commit(LoggedOperation operation, bool seasonEnds = false);

private:
    void beginHistory();
    void append(LoggedOperation operation);

    Application& app_;
    ApplicationState before_;
    Operation operation_;
    bool committed_ = false;
};

} // namespace iceline
