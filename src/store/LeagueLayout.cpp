#include "store/LeagueLayout.h"

#include "league/DefaultRosters.h"
#include "store/InitialFiles.h"
#include "store/LeaguePaths.h"
#include "store/TextFormat.h"

namespace iceline {

namespace {

class Layout {
public:
    void folder(std::string path) { entries_.push_back({LeagueEntry::Kind::Folder, std::move(path), {}}); }
    void site() { entries_.push_back({LeagueEntry::Kind::Site, paths::WebRoot, {}}); }
    void file(std::string path, std::function<std::string()> content) {
        entries_.push_back({LeagueEntry::Kind::File, std::move(path), std::move(content)});
    }
    void file(const std::string& folder, const InitialFile& file) {
        this->file(folder + "/" + file.name, file.content);
    }

    std::vector<LeagueEntry> take() { return std::move(entries_); }

private:
    std::vector<LeagueEntry> entries_;
};

void addTeam(Layout& layout, TeamIndex team) {
    const std::string folder = paths::teamFolder(team);
    const std::string postSeason = folder + seasonFolder(PartOfYear::Playoffs);
    layout.folder(folder);
    for (const char* profiles : {"Profiles", "PlayoffProfiles"})
        layout.folder(paths::page(profiles));
    for (const char* profiles : {"Profiles/", "PlayoffProfiles/"})
        layout.folder(paths::page(profiles + std::string(TeamAbbr[team])));
    layout.folder(postSeason);

    const auto files = initialTeamFiles();
    for (const InitialFile& file : files.first(2))
        layout.file(folder, file);
    layout.file(paths::playersList(team),
                [team] { return std::string(defaultRoster(team)) + std::string(LineEnd); });
    for (const InitialFile& file : files.subspan(2))
        layout.file(folder, file);
    for (const InitialFile& file : files)
        layout.file(postSeason, file);
}

void addCoach(Layout& layout, const std::string& coach) {
    for (const InitialFile& file : initialCoachFiles())
        layout.file(paths::coachFolder(coach), file);
}

} // namespace

std::vector<LeagueEntry> leagueLayout(Files& files) {
    Layout layout;
    layout.site();
    for (const TeamIndex team : AllLeagueTeams)
        addTeam(layout, team);
    for (const InitialFile& file : initialLeagueFiles())
        layout.file(file.name, file.content);
    layout.folder(paths::Coaches);
    if (files.isFolder(paths::Coaches))
        for (const std::string& coach : files.foldersIn(paths::Coaches))
            addCoach(layout, coach);
    for (const char* folder : {"BoxScores", "CStats", "PlayoffTStats", "TStats"})
        layout.folder(paths::page(folder));
    return layout.take();
}

} // namespace iceline
