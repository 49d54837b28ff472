#include "log/Baseline.h"

#include "store/InitialFiles.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

constexpr std::string_view RosterFile = "/Players List.txt";

std::vector<std::string> rosterPaths() {
    std::vector<std::string> rosters;
    for (const TeamIndex team : AllLeagueTeams)
        rosters.push_back(paths::playersList(team));
    return rosters;
}

} // namespace

std::vector<std::string> booksOf(Files& files) {
    std::vector<std::string> books;
    const auto add = [&](const std::string& path) {
        if (files.isFile(path))
            books.push_back(path);
    };
    for (const InitialFile& file : initialLeagueFiles())
        add(file.name);
    for (const TeamIndex team : AllLeagueTeams)
        for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs})
            for (const InitialFile& file : initialTeamFiles())
                add(paths::teamFile(team, part, file.name));
    if (files.isFolder(paths::Coaches))
        for (const std::string& coach : files.foldersIn(paths::Coaches))
            for (const std::string& file : files.filesIn(paths::coachFolder(coach)))
                add(paths::coachFile(coach, file));
    add(paths::page("BoxScores.htm"));
    return books;
}

FileContents copyOfBooks(Files& files) {
    FileContents copy;
    for (const std::string& path : booksOf(files))
        copy[path] = files.read(path);
    for (const std::string& path : rosterPaths())
        if (files.isFile(path))
            copy[path] = files.read(path);
    return copy;
}

bool isRoster(const std::string& path) {
    return path.ends_with(RosterFile);
}

} // namespace iceline
