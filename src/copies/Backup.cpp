#include "copies/Backup.h"

#include "log/EntryText.h"
#include "playoffs/SeasonEnd.h"
#include "shell/LoggedChange.h"
#include "store/LeagueFiles.h"

#include <algorithm>

namespace iceline {

namespace {

constexpr const char* ChecksumName = "checksum";

/// The files of the league that a copy holds.
FileContents wholeLeague(Files& files) {
    FileContents copy = copyOfBooks(files);
    for (const std::string& path : {paths::HistoryLog, paths::HistoryBaseline, paths::HistoryIndex})
        if (files.isFile(path))
            copy[path] = files.read(path);
    const std::string pages = paths::page("BoxScores");
    if (files.isFolder(pages))
        for (const std::string& page : files.filesIn(pages))
            copy[pages + "/" + page] = files.read(pages + "/" + page);
    return copy;
}

/// How the names of copies begin: of those that a user asks for, and of those that are made by themselves.
constexpr std::string_view AskedFor = "League";
constexpr std::string_view Automatic = "Automatic";

void dropOldestAutomatic(Files& files) {
    std::vector<std::string> names = files.filesIn(BackupFolder);
    std::erase_if(names, [](const std::string& name) { return !name.starts_with(Automatic); });
    for (std::size_t i = 0; i + AutomaticBackupsKept < names.size(); ++i)
        files.remove(BackupFolder + "/" + names[i]);
}

/// A name that no file of the folder has yet.
std::string freeName(Files& files, std::string stem) {
    std::ranges::replace(stem, ':', '-');
    std::string path = stem + ".json";
    for (int number = 2; files.isFile(path); ++number)
        path = stem + "_" + std::to_string(number) + ".json";
    return path;
}

FileContents readCopy(Files& files, const std::string& path) {
    FileContents copy = filesOfText(path, files.read(path));
    const std::string checksum = copy[ChecksumName];
    copy.erase(ChecksumName);
    if (checksumText(textOfFiles(copy)) != checksum || !copy.contains(paths::OverallGameNumber))
        throw FileError::about(path, "is no whole copy of a league");
    return copy;
}

/// Writes a copy whose name begins so, and returns its path.
std::string writeCopy(Application& app, const std::string& folder, std::string_view beginning) {
    Files& files = app.files();
    FileContents copy = wholeLeague(files);
    copy[ChecksumName] = checksumText(textOfFiles(copy));
    const std::string content = textOfFiles(copy);
    files.makeFolder(folder);
    std::string path =
        freeName(files, folder + "/" + std::string(beginning) + " " + utcText(app.platform().now()));
    files.write(path, content, Durability::Now);
    if (files.read(path) != content)
        throw FileError::about(path, "what was written there is not what can be read");
    return path;
}

} // namespace

std::string backUp(Application& app, const std::string& folder) {
    return writeCopy(app, folder, AskedFor);
}

std::string backUpByItself(Application& app) {
    std::string path = writeCopy(app, BackupFolder, Automatic);
    dropOldestAutomatic(app.files());
    return path;
}

std::string restore(Application& app, const std::string& copy) {
    const FileContents whole = readCopy(app.files(), copy);
    std::string former = backUpByItself(app);
    Operation operation(app);
    Files& files = app.files();
    for (const auto& [path, content] : wholeLeague(files))
        if (!whole.contains(path))
            files.remove(path);
    for (const auto& [path, content] : whole) {
        files.makeFolder(folderOf(path));
        files.write(path, content);
    }
    for (const std::string& coach : files.foldersIn(paths::Coaches))
        if (files.filesIn(paths::coachFolder(coach)).empty())
            files.removeFolder(paths::coachFolder(coach));
    operation.commit();
    app.log() = HistoryLog();
    app.windows().unloadAll();
    app.state.PlayoffMode = false;
    app.state.SeasonFolder.clear();
    app.state.SeasonLength = readNumber16(app.files(), paths::GamesUntilPlayoffs);
    app.state.Logged = false;
    checkSeason(app);
    return former;
}

} // namespace iceline
