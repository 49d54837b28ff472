#include "copies/KeptSeason.h"

#include "files/FileError.h"
#include "files/FileTree.h"
#include "files/Journal.h"
#include "log/HistoryLog.h"
#include "shell/Application.h"
#include "site/GenerateWebpages.h"
#include "site/OldSeasons.h"
#include "site/SiteSettings.h"
#include "store/LeaguePaths.h"
#include "store/TextFormat.h"
#include "text/Names.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace iceline {

namespace {

/// Holds the name of the season while its copies do not count.
const std::string Note = "Season Copy.txt";

std::array<std::string, 2> copiesOf(const std::string& name) {
    return {paths::keptSeason(name), paths::oldSeasonSite(name)};
}

/// Where the copies are while the new season is undone, in the same order.
std::array<std::string, 2> placesAside(const NewSeason& season, const std::string& time) {
    std::string stem = paths::History + "/Undone Seasons/" + season.name + " " + time;
    std::ranges::replace(stem, ':', '-');
    return {stem, stem + " site"};
}

void move(Files& files, const std::array<std::string, 2>& from, const std::array<std::string, 2>& to) {
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (!files.isFolder(from[i]))
            continue;
        if (files.isFolder(to[i]))
            throw FileError::about(to[i], "is in the way of the season's copy");
        files.makeFolder(folderOf(to[i]));
        files.rename(from[i], to[i]);
    }
}

/// The files of a league that is whole, with those of the site but for the seasons before.
std::vector<std::string> filesOfLeague(Files& files) {
    std::vector<std::string> all;
    for (const auto& file : copyOfBooks(files))
        if (!file.first.starts_with(paths::WebRoot))
            all.push_back(file.first);
    for (const std::string& path :
         {paths::HistoryLog, paths::HistoryBaseline, paths::HistoryIndex, paths::SiteSettings})
        if (files.isFile(path))
            all.push_back(path);
    for (const std::string& path : filesUnder(files, paths::WebRoot))
        if (!path.starts_with(paths::Seasons + "/"))
            all.push_back(paths::page(path));
    return all;
}

/// Writes the files of those paths into a folder, each with the text that `textOf` gives, and compares.
template <class TextOf>
void copyChecked(Files& files, const std::vector<std::string>& paths, const std::string& folder,
                 TextOf textOf) {
    for (const std::string& path : paths) {
        files.makeFolder(folderOf(folder + "/" + path));
        files.write(folder + "/" + path, textOf(path), Durability::Later);
    }
    files.sync();
    for (const std::string& path : paths)
        if (!files.holds(folder + "/" + path, textOf(path)))
            throw FileError::about(folder + "/" + path, "what was written there is not what can be read");
}

void makeCopies(Files& files, const std::string& name) {
    const auto [league, site] = copiesOf(name);
    copyChecked(files, filesOfLeague(files), league,
                [&](const std::string& path) { return files.read(path); });
    const OldSeasonSite pages(files, name);
    copyChecked(files, pages.paths(), site, [&](const std::string& path) { return pages.text(path); });
}

/// What cannot be removed now is at the next start.
void tryToRemoveBrokenSeason(Files& files) {
    try {
        removeBrokenSeason(files);
    } catch (const FileError&) {
        return;
    }
}

} // namespace

std::optional<std::string> seasonNameProblem(Files& files, const std::string& name) {
    if (trimmed(name).empty())
        return "Please enter a name for the season that is over!";
    if (const auto problem = namingProblem(name))
        return "A season's name " + *problem + ".";
    for (const std::string& folder : {paths::Seasons, paths::page(paths::Seasons)})
        if (files.isFolder(folder))
            for (const std::string& kept : files.foldersIn(folder))
                if (sameName(kept, name))
                    return "There is a season " + kept + " already.";
    return std::nullopt;
}

void keepSeason(Application& app, const std::string& name, const std::function<void()>& beginNext) {
    Files& files = app.files();
    if (!writeSite(app))
        throw FileError::about(paths::WebRoot, "the run was stopped, so the season goes on");
    files.write(Note, name + std::string(LineEnd), Durability::Now);
    try {
        makeCopies(files, name);
        beginNext();
    } catch (const FileError&) {
        tryToRemoveBrokenSeason(files);
        throw;
    }
    writeSeasons(files);
}

void settleKeptSeason(Files& files) {
    files.remove(Note);
}

std::optional<std::string> removeBrokenSeason(Files& files) {
    if (!files.isFile(Note) || files.isFile(Journal::FileName))
        return std::nullopt;
    const std::string note = files.read(Note);
    const std::string name = note.substr(0, note.find_first_of("\r\n"));
    if (!name.empty() && !namingProblem(name))
        for (const std::string& copy : copiesOf(name)) {
            removeTree(files, copy);
            removeWhenEmpty(files, folderOf(copy));
        }
    files.sync();
    files.remove(Note);
    files.sync();
    return name;
}

void putSeasonAside(Files& files, const NewSeason& season, const std::string& time) {
    move(files, copiesOf(season.name), placesAside(season, time));
}

void bringSeasonBack(Files& files, const NewSeason& season, const std::string& time) {
    move(files, placesAside(season, time), copiesOf(season.name));
}

} // namespace iceline
