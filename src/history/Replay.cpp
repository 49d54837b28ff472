#include "history/Replay.h"

#include "files/FileError.h"
#include "games/BookEntry.h"
#include "log/ChosenLength.h"
#include "playoffs/SeasonEnd.h"
#include "season/SeasonOperations.h"

namespace iceline {

namespace {

/// What lies under a league in memory.
class NoFiles : public Files {
public:
    std::string read(const std::string& path) override { throw FileError::missing(path); }
    std::string readFirst(const std::string& path, std::size_t) override { throw FileError::missing(path); }
    void write(const std::string& path, std::string_view, Durability) override { refuse(path); }
    void extend(const std::string& path, std::uintmax_t, std::string_view, Durability) override {
        refuse(path);
    }
    void remove(const std::string& path) override { refuse(path); }
    void makeFolder(const std::string& path) override { refuse(path); }
    void removeFolder(const std::string& path) override { refuse(path); }
    bool isFile(const std::string&) override { return false; }
    bool isFolder(const std::string& path) override { return path.empty(); }
    std::uintmax_t size(const std::string&) override { return 0; }
    std::vector<std::string> filesIn(const std::string&) override { return {}; }
    std::vector<std::string> foldersIn(const std::string&) override { return {}; }
    void sync() override {}

private:
    [[noreturn]] static void refuse(const std::string& path) {
        throw FileError::cannotWrite(path, "it is a league in memory");
    }
};

NoFiles& nowhere() {
    static NoFiles none;
    return none;
}

/// A league in memory: a folder has its new name at once, as there is no disk that it would have to wait for.
class LeagueInMemory : public StagedFiles {
public:
    LeagueInMemory() : StagedFiles(nowhere()) {}

    void rename(const std::string& path, const std::string& name) override {
        if (!isFolder(path))
            return StagedFiles::rename(path, name);
        makeFolder(name);
        for (const std::string& file : filesIn(path))
            StagedFiles::rename(path + "/" + file, name + "/" + file);
        removeFolder(path);
    }
};

/// Nobody sits before a league in memory.
class NoPlatform : public Platform {
public:
    Answer ask(const Message&) override { return Answer::Ok; }
    std::optional<std::string> chooseFile(const std::string&, const std::vector<FileFilter>&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFolder(const std::string&) override { return std::nullopt; }
    void setBusy(bool) override {}
    double random() override { return 0; }
    bool showProgress(const Progress&) override { return true; }
    void endProgress() override {}
};

void accept(Files& files, const FilesAccepted& accepted) {
    for (const auto& [path, content] : accepted.files) {
        if (content) {
            files.makeFolder(folderOf(path));
            files.write(path, *content);
        } else {
            files.remove(path);
        }
    }
}

/// What start-up makes of the league.
void startAgain(Application& app) {
    app.state = {};
    app.state.ShowWindows = true;
    app.state.SeasonLength = readNumber16(app.files(), paths::GamesUntilPlayoffs);
    checkSeason(app);
}

void takeRosters(Files& files, const GameImported& game) {
    for (const auto& [abbr, roster] : game.rosters)
        if (const auto team = teamByAbbr(abbr))
            files.write(paths::playersList(*team), roster);
}

std::string gameTitle(const GameImported& game, int number) {
    return "game " + std::to_string(number > 0 ? number : game.gameNumber) + ", " + scoreText(game.sheet);
}

/// What a user calls an operation, after the name that the log gives it.
struct Detail {
    std::string operator()(const CoachAdded& operation) const { return " " + operation.coach; }
    std::string operator()(const CoachRenamed& operation) const {
        return " " + operation.coach + " " + operation.to;
    }
    std::string operator()(const CoachDeleted& operation) const { return " " + operation.coach; }
    std::string operator()(const CoachCleared& operation) const { return " " + operation.coach; }
    std::string operator()(const SeasonLengthSet& operation) const {
        return " " + std::to_string(operation.length);
    }
    std::string operator()(const StatsCleared& operation) const {
        return " " + std::string(operation.team == AllTeams ? TeamAbbr[AllTeams] : TeamName[operation.team]);
    }
    std::string operator()(const NewSeason& operation) const { return " " + operation.name; }
    std::string operator()(const ImportRefused& operation) const { return " of " + operation.saveState; }
    std::string operator()(const GameCorrected& operation) const {
        return " " + gameTitle(operation.game, operation.game.gameNumber);
    }
    template <class Other>
    std::string operator()(const Other&) const {
        return "";
    }
};

} // namespace

std::string titleOf(const Step& step) {
    const LoggedOperation& operation = step.entry.operation;
    if (const auto* game = std::get_if<GameImported>(&operation))
        return gameTitle(*game, step.gameNumber);
    return std::string(whatOf(operation)) + std::visit(Detail(), operation);
}

Misfit::Misfit(const Step& step, const std::string& reason)
    : std::runtime_error("This cannot be done, because " + titleOf(step) +
                         ", would not hold any more: " + reason + ".") {}

struct Replay::World {
    World(const FileContents& baseline, WindowCatalogue windows)
        : length(baseline), app(files, nowhere(), platform, windows) {}
    World(const World& other)
        : files(other.files), length(other.length),
          app(files, nowhere(), platform, other.app.windows().catalogue()) {
        app.state = other.app.state;
    }
    World& operator=(const World&) = delete;
    ~World() = default;

    mutable LeagueInMemory files;
    ChosenLength length;
    NoPlatform platform;
    mutable Application app;
};

Replay::Replay(const FileContents& baseline, WindowCatalogue catalogue)
    : world_(std::make_unique<World>(baseline, catalogue)) {
    for (const auto& [path, content] : baseline) {
        world_->files.makeFolder(folderOf(path));
        world_->files.write(path, content, Durability::Unsynced);
    }
    world_->files.makeFolder(paths::Coaches);
    world_->files.makeFolder(paths::page("BoxScores"));
}

Replay::Replay(std::unique_ptr<World> world) : world_(std::move(world)) {}

Replay::~Replay() = default;

std::unique_ptr<Replay> Replay::fork() const {
    return std::unique_ptr<Replay>(new Replay(std::make_unique<World>(*world_)));
}

namespace {

/// Carries an operation out in memory, and what the program does of itself after it.
class Performer {
public:
    Performer(Application& app, const Step& step, int chosenLength)
        : app_(app), step_(step), chosenLength_(chosenLength) {}

    void operator()(const GameImported& operation) const {
        perform(operation);
        checkSeason(app_);
    }
    void operator()(const CoachAdded& operation) const { perform(operation); }
    void operator()(const CoachRenamed& operation) const { perform(operation); }
    void operator()(const CoachDeleted& operation) const { perform(operation); }
    void operator()(const CoachCleared& operation) const { perform(operation); }
    void operator()(const NewSeason& operation) const { perform(operation, chosenLength_); }
    void operator()(const ImportRefused& operation) const { carryOut(app_, operation); }
    void operator()(const SeasonLengthSet& operation) const { carryOut(app_, operation); }
    void operator()(const StatsCleared& operation) const { carryOut(app_, operation); }
    void operator()(const GoneToPlayoffs& operation) const {
        carryOut(app_, operation);
        checkSeason(app_);
    }
    void operator()(const PlayoffsBegun&) const { checkSeason(app_); }
    void operator()(const FilesAccepted& operation) const { accept(app_.files(), operation); }
    void operator()(const BaselineTaken&) const {}
    void operator()(const Undone&) const {}
    void operator()(const Redone&) const {}
    void operator()(const GameCorrected&) const {}

private:
    template <class Kind, class... More>
    void perform(const Kind& operation, More... more) const {
        if (const auto misfit = misfitOf(app_, operation))
            throw Misfit(step_, *misfit);
        carryOut(app_, operation, more...);
    }

    Application& app_;
    const Step& step_;
    int chosenLength_;
};

} // namespace

void Replay::carryOut(const Step& step) {
    Application& app = world_->app;
    try {
        if (step.entry.starts)
            startAgain(app);
        if (const auto* game = std::get_if<GameImported>(&step.entry.operation))
            takeRosters(app.files(), *game);
        if (!step.undone)
            std::visit(Performer(app, step, world_->length.games()), step.entry.operation);
        world_->length.follow(step);
    } catch (const FileError& error) {
        throw Misfit(step, error.what());
    }
}

FileContents Replay::books() const {
    FileContents books;
    for (Change& change : world_->files.changes())
        if (change.kind == Change::Kind::Write && !isRoster(change.path))
            books.emplace(std::move(change.path), std::move(change.content));
    return books;
}

std::optional<std::string> Replay::content(const std::string& path) const {
    return world_->files.isFile(path) ? std::optional(world_->files.read(path)) : std::nullopt;
}

const ApplicationState& Replay::state() const {
    return world_->app.state;
}

} // namespace iceline
