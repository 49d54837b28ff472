#include "log/Chronicle.h"

#include "league/TeamTable.h"
#include "store/LeaguePaths.h"

#include <charconv>
#include <stdexcept>

namespace iceline {

namespace {

template <class Kind>
bool is(const LoggedOperation& operation) {
    return std::holds_alternative<Kind>(operation);
}

/// Works off the lines one after the other.
class Chronicler {
public:
    explicit Chronicler(std::vector<Entry> entries) {
        for (Entry& entry : entries)
            steps_.push_back({entry});
        logged_ = std::move(entries);
    }

    std::vector<Step> steps() {
        for (const Entry& entry : logged_)
            std::visit([&](const auto& operation) { apply(operation, entry.number); }, entry.operation);
        numberGames();
        return std::move(steps_);
    }

private:
    template <class Operation>
    void apply(const Operation&, int) {}

    void apply(const Undone& undo, int at) { setUndone(undo.of, at, true); }
    void apply(const Redone& redo, int at) { setUndone(redo.of, at, false); }
    void apply(const GameCorrected& correction, int at) {
        if (!is<GameImported>(stepBefore(at, correction.of).entry.operation))
            throw std::invalid_argument("operation " + std::to_string(correction.of) + " is no game");
        renewGame(correction.of, at);
    }

    Step& stepBefore(int at, int number) {
        if (number < 1 || number >= at)
            throw std::invalid_argument("there is no operation " + std::to_string(number) + " before it");
        return steps_[static_cast<std::size_t>(number)];
    }

    void setUndone(int number, int at, bool undone) {
        Step& step = stepBefore(at, number);
        if (!canBeUndone(step.entry.operation) || step.undone == undone)
            throw std::invalid_argument("operation " + std::to_string(number) +
                                        " cannot be undone or redone");
        step.undone = undone;
        if (const auto* correction = std::get_if<GameCorrected>(&step.entry.operation))
            renewGame(correction->of, at);
    }

    /// A game is what the last correction in place up to line `upTo` says, or what it was imported as.
    void renewGame(int number, int upTo) {
        Step& game = steps_[static_cast<std::size_t>(number)];
        game.entry.operation = logged_[static_cast<std::size_t>(number)].operation;
        game.corrected = false;
        for (int line = number + 1; line <= upTo; ++line) {
            const auto place = static_cast<std::size_t>(line);
            const auto* correction = std::get_if<GameCorrected>(&logged_[place].operation);
            if (!correction || correction->of != number || steps_[place].undone)
                continue;
            game.entry.operation = correction->game;
            game.corrected = true;
        }
    }

    void numberGames() {
        int number = 0;
        for (Step& step : steps_) {
            if (step.undone)
                continue;
            const LoggedOperation& operation = step.entry.operation;
            if (is<GameImported>(operation) || is<ImportRefused>(operation))
                step.gameNumber = ++number;
            else
                number = numberAfter(operation, number);
        }
    }

    static int numberAfter(const LoggedOperation& operation, int number) {
        if (const auto* baseline = std::get_if<BaselineTaken>(&operation))
            return baseline->gameNumber;
        if (emptiesBooks(operation))
            return 0;
        if (const auto* accepted = std::get_if<FilesAccepted>(&operation))
            for (const AcceptedFile& file : accepted->files)
                if (file.path == paths::OverallGameNumber && file.content)
                    std::from_chars(file.content->data(), file.content->data() + file.content->size(),
                                    number);
        return number;
    }

    std::vector<Entry> logged_;
    std::vector<Step> steps_;
};

} // namespace

std::vector<Step> chronicleOf(std::vector<Entry> entries) {
    return Chronicler(std::move(entries)).steps();
}

bool canBeUndone(const LoggedOperation& operation) {
    return !is<BaselineTaken>(operation) && !is<PlayoffsBegun>(operation) && !is<Undone>(operation) &&
           !is<Redone>(operation);
}

std::optional<int> lastToUndo(const std::vector<Step>& steps) {
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        if (!step->undone && canBeUndone(step->entry.operation))
            return step->entry.number;
    return std::nullopt;
}

std::optional<int> lastToRedo(const std::vector<Step>& steps) {
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        if (const auto* undo = std::get_if<Undone>(&step->entry.operation))
            if (steps.at(static_cast<std::size_t>(undo->of)).undone)
                return undo->of;
    return std::nullopt;
}

bool emptiesBooks(const LoggedOperation& operation) {
    const auto* cleared = std::get_if<StatsCleared>(&operation);
    return is<NewSeason>(operation) || (cleared && cleared->team == AllTeams);
}

std::vector<const Step*> gamesInBooks(const std::vector<Step>& steps) {
    std::vector<const Step*> games;
    for (const Step& step : steps) {
        if (gameAt(step))
            games.push_back(&step);
        if (!step.undone && emptiesBooks(step.entry.operation))
            games.clear();
    }
    return games;
}

const GameImported* gameAt(const Step& step) {
    return step.undone ? nullptr : std::get_if<GameImported>(&step.entry.operation);
}

} // namespace iceline
