#include "files/FileError.h"
#include "games/FolderRunNote.h"
#include "games/StatExtractor.h"
#include "games/ThreeStars.h"
#include "shell/Application.h"
#include "standings/Standings.h"

#include <exception>

namespace iceline {

namespace {

/// Takes steps that are worth taking whatever became of the ones before, and keeps the first error.
class Steps {
public:
    template <class Step>
    void take(Step step) {
        try {
            step();
        } catch (...) {
            if (!failure_)
                failure_ = std::current_exception();
        }
    }

    void rethrowFailure() const {
        if (failure_)
            std::rethrow_exception(failure_);
    }

private:
    std::exception_ptr failure_;
};

/// The import of the files of a folder, one after the other.
class FolderRun {
public:
    FolderRun(Application& app, StatExtractor& window, const std::string& folder)
        : app_(app), window_(window), folder_(folder) {
        window_.ImportMode = 1;
        window_.ImportCount = 0;
        window_.ImportAnswer = Answer::Ok;
        window_.PassedOver = 0;
    }
    ~FolderRun() { window_.ImportMode = 0; }
    FolderRun(const FolderRun&) = delete;
    FolderRun& operator=(const FolderRun&) = delete;

    /// What was imported until an error stays. Returns the closing message.
    std::string run(Steps& steps) {
        const BusyPointer busy(app_.platform());
        app_.journal().beginRun();
        steps.take([this] {
            change([this] { writeFolderRunNote(app_.files(), {0, "", folder_}); });
            importFiles();
        });
        steps.take([this] { change([this] { removeFolderRunNote(app_.files()); }); });
        steps.take([this] { app_.journal().endRun(); });
        return closingMessage();
    }

private:
    template <class Step>
    void change(Step step) {
        Operation operation(app_);
        step();
        operation.commit();
    }

    void importFiles() {
        const std::vector<std::string> names = app_.files().filesIn(folder_);
        ProgressRun progress(app_.platform(), "Importing games", static_cast<int>(names.size()), true);
        for (const std::string& name : names) {
            if (window_.ImportAnswer == Answer::Cancel)
                return;
            stopped_ = !progress.next(name);
            if (stopped_)
                return;
            importFile(name);
        }
    }

    void importFile(const std::string& name) {
        app_.state.SaveStatePath = folder_ + "/" + name;
        window_.SaveStateFileName = name;
        window_.GameLoaded = true;
        const PlayedGame& game = window_.readGameInHand();
        if (const auto doubt = window_.Force ? std::nullopt : window_.doubtAbout(game)) {
            (doubt->kind == GameDoubt::Kind::AlreadyCounted ? counted_ : refused_).push_back(name);
            ++window_.PassedOver;
            return;
        }
        if (!game.refusal)
            selectStars(app_.state, game);
        const int before = window_.ImportCount;
        window_.ImportStats_Click();
        if (window_.ImportCount > before) {
            lastImported_ = name;
        } else {
            refused_.push_back(name);
            ++window_.PassedOver;
            window_.checkSeason();
        }
    }

    /// "17 imported, 3 already in the books, 1 refused", and the names of those left out.
    std::string account() const {
        std::string text = std::to_string(window_.ImportCount) + " imported";
        std::string names;
        const auto add = [&](const std::vector<std::string>& files, const std::string& what) {
            if (files.empty())
                return;
            text += ", " + std::to_string(files.size()) + " " + what;
            for (const std::string& file : files)
                names += "\n" + file + ": " + what;
        };
        add(counted_, "already in the books");
        add(refused_, "refused");
        return text + names;
    }

    std::string closingMessage() const {
        std::string message = window_.PassedOver > 0 && !window_.Force
                                  ? account()
                                  : std::to_string(window_.ImportCount) + " Files imported";
        if (stopped_)
            message += "\nThe run was stopped.";
        if (stopped_ && !lastImported_.empty())
            message += " The last file imported was " + lastImported_ + ".";
        return message;
    }

    Application& app_;
    StatExtractor& window_;
    std::string folder_;
    std::string lastImported_;         ///< file name; empty before the first
    std::vector<std::string> counted_; ///< names of the files passed over, their games being in the books
    std::vector<std::string> refused_; ///< names of those that hold no finished game, or were refused
    bool stopped_ = false;             ///< the user has stopped the run
};

} // namespace

void StatExtractor::ImportFolder_Click() {
    if (lacksCoach()) {
        app_.platform().say("Please select at least one coach first to import exhibition game to");
        return;
    }
    const auto folder = app_.platform().chooseFolder("Select folder to import");
    if (!folder)
        return;
    const std::string question = "Are you sure you want import all files in " + *folder + "?";
    if (app_.platform().ask({question, Buttons::YesNo, "Import"}) != Answer::Yes)
        return;
    Steps steps;
    const std::string closing = FolderRun(app_, *this, *folder).run(steps);
    app_.platform().say(closing);
    steps.take([this] {
        Standings::in(app_).DivisionStandingsUpdate();
        updateStandings();
    });
    steps.rethrowFailure();
}

} // namespace iceline
