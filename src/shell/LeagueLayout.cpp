#include "shell/LeagueLayout.h"

#include "shell/DefaultRosters.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

constexpr int SeasonLengthAtStart = 82;
constexpr int CrowdMeterAtStart = 80;

/// A file and what it begins with.
struct NewFile {
    std::string name;
    std::string (*initialContent)();
};

std::string nothing() {
    return "";
}

std::string initialRecordsText() {
    return lineOf(TeamRecord());
}

std::string initialStreakText() {
    return lineOf(Streak());
}

std::string initialCrowdMeterText() {
    return numberLine(CrowdMeterAtStart);
}

std::string initialLeagueRecordsText() {
    return textOf(initialLeagueRecords());
}

template <class Records>
std::string initialTextOf() {
    return textOf(Records());
}

const NewFile LastTenFile{paths::Last10Games, nothing};
const NewFile PlayerStatsFile{paths::PlayerStats, initialPlayerStatsText};
const NewFile RecordsFile{paths::Records, initialRecordsText};
const NewFile StreakFile{paths::Streak, initialStreakText};

const std::vector<NewFile>& leagueFiles() {
    static const std::vector<NewFile> files{
        {paths::Last10Box, nothing},
        {paths::GamesUntilPlayoffs, [] { return numberLine(SeasonLengthAtStart); }},
        {paths::CrowdMeter, initialCrowdMeterText},
        {paths::twin(PartOfYear::Playoffs, paths::CrowdMeter), initialCrowdMeterText},
        {"League Records.txt", initialUnusedLeagueRecordsText},
        {"Playoff League Records.txt", initialUnusedLeagueRecordsText},
        {paths::PlayoffRecords, initialTextOf<PlayoffSeriesTable>},
        {paths::OverallGameNumber, [] { return numberLine(0); }},
        {paths::allTimeGoalieRecords(PartOfYear::Season), initialTextOf<AllTimeGoalieRecords>},
        {paths::allTimeGoalieRecords(PartOfYear::Playoffs), initialTextOf<AllTimeGoalieRecords>},
        {paths::allTimePlayerRecords(PartOfYear::Season), initialTextOf<AllTimePlayerRecords>},
        {paths::allTimePlayerRecords(PartOfYear::Playoffs), initialTextOf<AllTimePlayerRecords>},
        {paths::allTimeLeagueRecords(PartOfYear::Season), initialLeagueRecordsText},
        {paths::allTimeLeagueRecords(PartOfYear::Playoffs), initialLeagueRecordsText},
        {paths::coachesLeagueRecords(PartOfYear::Season), initialTextOf<CoachesLeagueRecords>},
        {paths::coachesLeagueRecords(PartOfYear::Playoffs), initialTextOf<CoachesLeagueRecords>},
    };
    return files;
}

class Layout {
public:
    void folder(std::string path) { entries_.push_back({LeagueEntry::Kind::Folder, std::move(path), {}}); }
    void site() { entries_.push_back({LeagueEntry::Kind::Site, paths::WebRoot, {}}); }
    void file(std::string path, std::function<std::string()> content) {
        entries_.push_back({LeagueEntry::Kind::File, std::move(path), std::move(content)});
    }
    void file(const std::string& folder, const NewFile& file) {
        this->file(folder + "/" + file.name, file.initialContent);
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

    layout.file(folder, LastTenFile);
    layout.file(folder, PlayerStatsFile);
    layout.file(paths::playersList(team),
                [team] { return std::string(defaultRoster(team)) + std::string(LineEnd); });
    layout.file(folder, RecordsFile);
    layout.file(folder, StreakFile);
    for (const NewFile* file : {&LastTenFile, &PlayerStatsFile, &RecordsFile, &StreakFile})
        layout.file(postSeason, *file);
}

void addCoach(Layout& layout, const std::string& coach) {
    for (const NewFile* file : {&LastTenFile, &RecordsFile, &StreakFile})
        layout.file(paths::coachFolder(coach), *file);
}

} // namespace

std::vector<LeagueEntry> leagueLayout(Files& files) {
    Layout layout;
    layout.site();
    for (TeamIndex team = 0; team < LeagueTeams; ++team)
        addTeam(layout, team);
    for (const NewFile& file : leagueFiles())
        layout.file(file.name, file.initialContent);
    layout.folder(paths::Coaches);
    if (files.isFolder(paths::Coaches))
        for (const std::string& coach : files.foldersIn(paths::Coaches))
            addCoach(layout, coach);
    for (const char* folder : {"BoxScores", "CStats", "PlayoffTStats", "TStats"})
        layout.folder(paths::page(folder));
    return layout.take();
}

} // namespace iceline
