#pragma once

#include "app/OpenLeague.h"
#include "cli/ConsolePlatform.h"
#include "cli/Printout.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace iceline::cli {

/// How a command ended; the value is the exit status.
enum class Status { Done = 0, Refused = 1, Misused = 2, Partly = 3 };

/// An argument is wrong. what() is one line for the user that names it.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What a call has chosen before its command.
struct LeagueChoice {
    std::string folder = "."; ///< relative to the current folder
    bool yes = false;         ///< questions are answered with OK
};

/// One run of the program: the console that it talks through and, from start() on, its league.
class Session {
public:
    Session(Console& console, LeagueChoice choice);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Takes the league for this run and starts up on it. False when the start-up question was answered with
    /// Cancel. Throws UsageError when the league folder does not exist, and FileError.
    bool start();

    /// Starts up on a league that is looked at and not changed. Where its folder cannot be written, or a
    /// change noted in its journal cannot be finished, what would be written stays in memory, and the user is
    /// told.
    bool startLooking();

    /// Takes the league for this run without starting up on it, to mend what keeps it from that.
    void takeLeague();

    /// Gives the league up, so that other programs may work on it while this one goes on, and shows what has
    /// been printed for a pager.
    void end();

    /// Prints what `print` says, with a pager where there is one: that is shown at the end.
    void print(const std::function<void(Printout&)>& print, bool json = false);

    /// The folder of the site that the league publishes.
    std::filesystem::path siteFolder() const;

    Console& console() { return console_; }
    std::ostream& out() { return console_.out; }
    ConsolePlatform& platform() { return platform_; }

    /// The league. Only after start().
    Application& app() { return league_->app(); }

private:
    std::filesystem::path leagueFolder() const;
    void takeLeague(LeagueLock lock);
    bool startUpOnLeague();
    bool startInMemory(LeagueLock lock);
    void tellWarnings();

    Console& console_;
    LeagueChoice choice_;
    ConsolePlatform platform_;
    std::optional<OpenLeague> league_;
    std::string forPager_;
};

/// A path that the user has given, relative to the current folder, as Files takes it. Throws UsageError when
/// it is empty, FileError when there is no current folder.
std::string absolutePath(const std::string& given);

} // namespace iceline::cli
