#pragma once

#include "files/DiskFiles.h"
#include "files/LeagueLock.h"
#include "files/StagedFiles.h"
#include "shell/Application.h"

#include <filesystem>
#include <string>

namespace iceline {

/// A league in its folder, taken for one run of a program, with all that the run works on.
class OpenLeague {
public:
    /// Where what the run writes goes: to the disk, or to memory, where it ends with the run. A league whose
    /// writes go to memory can only be looked at: its operations are refused once it has started up.
    enum class Writes { ToDisk, ToMemory };

    /// `platform` must outlive the league.
    OpenLeague(const std::filesystem::path& folder, Platform& platform, LeagueLock lock, Writes writes);

    /// Starts up; see startUp(). In memory a change that the journal holds is seen as made, where that can
    /// be.
    bool start();

    /// Whether a journal lies there whose changes have not all been made.
    bool hasUnfinishedChange();

    /// Sentences for the user about what the disk of the league cannot do, each given once; empty when there
    /// is nothing new.
    std::string takeWarnings();

    /// Gives the lock on, to open the league again in another way. The league is of no use afterwards.
    LeagueLock giveLock() { return std::move(lock_); }

    Application& app() { return app_; }

private:
    void recoverInMemory();

    LeagueLock lock_;
    DiskFiles disk_;
    StagedFiles memory_;
    DiskFiles siteTemplate_;
    Writes writes_;
    std::string lockWarning_;
    Application app_;
};

} // namespace iceline
