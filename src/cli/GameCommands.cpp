#include "cli/GameChoices.h"
#include "cli/UseWindow.h"
#include "cli/WindowPrinters.h"
#include "files/FileError.h"
#include "games/StatExtractor.h"
#include "history/ImportPreview.h"

namespace iceline::cli {

namespace {

/// What is imported, and how.
struct Import : GameChoices {
    std::string path;
    bool stopOnRefusal = false;
    bool force = false;
    bool dryRun = false;
};

struct Reading {
    std::string path;
    bool json = false;
};

/// "Select Game". False when the file was refused.
bool selectGame(Session& session, const std::string& file) {
    StatExtractor& window = StatExtractor::in(session.app());
    session.platform().choice = absolutePath(file);
    window.GameLoaded = false;
    window.LoadStats_Click();
    return window.GameLoaded;
}

Status read(Session& session, const Reading& reading) {
    if (!selectGame(session, reading.path))
        return Status::Refused;
    const GameReport& report = *StatExtractor::in(session.app()).content().report;
    session.print([&](Printout& out) { printGame(report, out); }, reading.json);
    return Status::Done;
}

Status printPreview(const ImportPreview& preview, bool force, std::ostream& out) {
    if (preview.doubt && !force) {
        out << preview.doubt->text << '\n';
        return Status::Refused;
    }
    for (const std::string& line : linesOf(preview))
        out << line << '\n';
    return preview.refusal ? Status::Refused : Status::Done;
}

/// The choices in the game window.
void chooseFor(Session& session, const Import& import) {
    choose(session, import);
    StatExtractor::in(session.app()).Force = import.force;
}

Status importOne(Session& session, const Import& import) {
    chooseFor(session, import);
    if (!selectGame(session, import.path))
        return Status::Refused;
    if (import.dryRun)
        return printPreview(previewImport(session.app()), import.force, session.out());
    StatExtractor& window = StatExtractor::in(session.app());
    const int before = window.ImportCount;
    window.ImportStats_Click();
    return window.ImportCount > before ? Status::Done : Status::Refused;
}

Status importAll(Session& session, const Import& import) {
    using Respondent = ConsolePlatform::Respondent;
    const std::string folder = absolutePath(import.path);
    if (!session.app().files().isFolder(folder))
        throw FileError::about(folder, "there is no such folder");
    chooseFor(session, import);
    ConsolePlatform& platform = session.platform();
    platform.choice = folder;
    platform.respondent = import.stopOnRefusal ? Respondent::AlwaysCancel : Respondent::AlwaysOk;
    StatExtractor& window = StatExtractor::in(session.app());
    window.ImportFolder_Click();
    const bool ran = !std::exchange(platform.choice, std::nullopt);
    if (!ran || window.ImportAnswer == Answer::Cancel)
        return Status::Refused;
    return window.PassedOver > 0 ? Status::Partly : Status::Done;
}

Status importGame(Session& session, const Import& import) {
    return uninterrupted([&] { return importOne(session, import); });
}

Status importFolder(Session& session, const Import& import) {
    return uninterrupted([&] { return importAll(session, import); });
}

void addChoices(CLI::App& command, Import& import) {
    addGameChoices(command, import);
    command.add_flag("--force", import.force,
                     "count games that are in the books, and files without a finished game");
}

} // namespace

void addGameCommands(CLI::App& program, Call& call) {
    const auto [readCommand, reading] = addCommand<Reading>(
        program, call, "read", "Print the game report of a save state", read, Works::Looking);
    addArgument(*readCommand, "FILE", reading->path, "the save state of a finished game");
    readCommand->add_flag("--json", reading->json, "as JSON");

    const auto [importCommand, game] =
        addCommand<Import>(program, call, "import", "Import a game into the league", importGame);
    addArgument(*importCommand, "FILE", game->path, "the save state of a finished game");
    addChoices(*importCommand, *game);
    importCommand->add_flag("--dry-run", game->dryRun, "print what would change, and change nothing");

    const auto [folderCommand, folder] =
        addCommand<Import>(program, call, "import-folder",
                           "Import every game of a folder, in the order of the names", importFolder);
    addArgument(*folderCommand, "DIR", folder->path, "a folder of save states");
    addChoices(*folderCommand, *folder);
    folderCommand->add_flag("--stop-on-refusal", folder->stopOnRefusal,
                            "end the run at a game that is refused");
}

} // namespace iceline::cli
