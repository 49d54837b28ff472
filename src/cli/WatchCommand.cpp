#include "cli/GameChoices.h"
#include "files/FileError.h"
#include "games/StatExtractor.h"
#include "shell/ErrorText.h"
#include "site/GenerateWebpages.h"
#include "watch/FolderWatch.h"
#include "watch/GameWatch.h"

#include <set>
#include <thread>

namespace iceline::cli {

namespace {

struct Watch : GameChoices {
    std::string folder;
    bool publish = false;
};

/// One run of the command. It has the league only while there is something to import, so that other programs
/// can work on it in between; while they do, the games wait.
class WatchRun {
public:
    WatchRun(Session& session, const Watch& watch)
        : session_(session), watch_(watch), folder_(absolutePath(watch.folder)) {
        choose(session_, watch_);
        if (StatExtractor::in(session_.app()).lacksCoach())
            throw UsageError("an exhibition game needs a coach: give --home-coach or --away-coach");
        session_.end();
    }

    void run() {
        session_.out() << "Watching " << folder_.folder() << "\nCtrl+C ends it." << std::endl;
        while (StopSignals::received() == 0) {
            for (const std::string& path : folder_.wholeFiles(std::chrono::steady_clock::now()))
                waiting_.insert(path);
            if (!waiting_.empty() && takeLeague())
                lookIntoFiles();
            std::this_thread::sleep_for(FolderWatch::Pause);
        }
    }

private:
    /// False while the league cannot be had, as while another program has it; why is said once.
    bool takeLeague() {
        try {
            if (session_.start()) {
                whyNot_.clear();
                choose(session_, watch_);
                return true;
            }
        } catch (const FileError& error) {
            if (std::exchange(whyNot_, error.what()) != error.what())
                report(session_.console(), whyNot_ + " (the games wait)");
        }
        session_.end();
        return false;
    }

    void lookIntoFiles() {
        for (const std::string& path : std::exchange(waiting_, {})) {
            const auto game = games_.look(session_.app(), path);
            if (game && StopSignals::received() == 0)
                tell(*game);
        }
        if (watch_.publish && StatExtractor::in(session_.app()).ImportCount > 0)
            publish();
        session_.out() << std::flush;
        session_.end();
    }

    void tell(const WatchedGame& game) {
        const std::string file = fileNameOf(game.path);
        if (game.refusal)
            session_.out() << *game.refusal << '\n';
        else if (const auto refusal = refusalOf(game.path); !refusal)
            import(file + ": " + game.score);
        else if (games_.isNews(game.path, *refusal))
            session_.out() << file << ": " << game.score << ": " << *refusal << '\n';
    }

    /// Why the league would not take the game. Reads it into the game window.
    std::optional<std::string> refusalOf(const std::string& path) {
        StatExtractor& window = StatExtractor::in(session_.app());
        window.showGame(path);
        window.IsSlot = true;
        return window.tryImport([] {});
    }

    void import(const std::string& title) {
        session_.out() << title << ": ";
        try {
            StatExtractor::in(session_.app()).ImportStats_Click();
        } catch (const FileError& error) {
            session_.out() << error.what() << '\n';
        }
    }

    void publish() {
        session_.platform().isQuiet = true;
        try {
            generateWebpages(session_.app());
        } catch (const FileError& error) {
            report(session_.console(), error.what());
        }
        session_.platform().isQuiet = false;
    }

    Session& session_;
    const Watch& watch_;
    FolderWatch folder_;
    GameWatch games_;
    std::set<std::string> waiting_; ///< paths of files that have been whole
    std::string whyNot_;            ///< the reason why the league could not be taken; empty when it could
};

Status watchFolder(Session& session, const Watch& watch) {
    return uninterrupted([&] {
        WatchRun(session, watch).run();
        return Status::Done;
    });
}

} // namespace

void addWatchCommand(CLI::App& program, Call& call) {
    const auto [command, watch] = addCommand<Watch>(
        program, call, "watch", "Import every finished game that appears in a folder, until it is stopped",
        watchFolder);
    addArgument(*command, "DIR", watch->folder, "the folder that the emulator writes its save states to");
    addGameChoices(*command, *watch);
    command->add_flag("--publish", watch->publish, "publish the web site after each game");
}

} // namespace iceline::cli
