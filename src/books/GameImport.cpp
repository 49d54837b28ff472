#include "books/GameImport.h"

#include "books/PlayerStatsUpdate.h"
#include "books/TeamRecordUpdate.h"
#include "store/LeaguePaths.h"
#include "store/TeamFiles.h"

#include <map>
#include <vector>

namespace iceline {

namespace {

/// The players of the teams that a game touches. A team that plays itself has one set of lines.
class PlayerSheets {
public:
    PlayerSheets(Files& files, PartOfYear part) : files_(files), part_(part) {}

    TeamPlayerStats& of(TeamIndex team) {
        auto sheet = sheets_.find(team);
        if (sheet == sheets_.end()) {
            const Roster roster = readRoster(files_, paths::playersList(team));
            sheet = sheets_.emplace(team, readPlayerStats(files_, path(team), roster)).first;
        }
        return sheet->second;
    }

    void write() {
        for (const auto& [team, stats] : sheets_)
            files_.write(path(team), playerStatsText(path(team), stats));
    }

private:
    std::string path(TeamIndex team) const { return paths::teamFile(team, part_, paths::PlayerStats); }

    Files& files_;
    PartOfYear part_;
    std::map<TeamIndex, TeamPlayerStats> sheets_;
};

void importPlayers(Files& files, const ImportedGame& game) {
    PlayerSheets sheets(files, game.part);
    for (const Side side : {Side::Home, Side::Away})
        updatePlayerStats(sheets.of(game.sheet.of(side).team), game.sheet, side, game.seasonLength);
    for (std::size_t star = 0; star < PointsOfStars.size(); ++star)
        addStarPoints(sheets.of(game.Star[star].Team)[game.StarSlot[star]], PointsOfStars[star]);
    sheets.write();
}

void importPlayerRecords(Files& files, const ImportedGame& game) {
    const std::string path = paths::allTimePlayerRecords(game.part);
    AllTimePlayerRecords records = readAllTimePlayerRecords(files, path);
    if (game.counts)
        updateSpecialGoalRecords(records, game.sheet, game.rosters);
    updatePlayerRecords(records, game.sheet, Side::Home, game.rosters);
    updatePlayerRecords(records, game.sheet, Side::Away, game.rosters);
    files.write(path, textOf(path, records));
}

void importGoalieRecords(Files& files, const ImportedGame& game) {
    const std::string path = paths::allTimeGoalieRecords(game.part);
    AllTimeGoalieRecords records = readAllTimeGoalieRecords(files, path);
    updateGoalieRecords(records, game.sheet, Side::Home, game.rosters);
    if (game.counts)
        updateGoalieRecords(records, game.sheet, Side::Away, game.rosters);
    files.write(path, textOf(path, records));
}

void importLeagueRecords(Files& files, const ImportedGame& game) {
    const std::string path = paths::allTimeLeagueRecords(game.part);
    const std::string coachesPath = paths::coachesLeagueRecords(game.part);
    AllTimeLeagueRecords records = readAllTimeLeagueRecords(files, path);
    CoachesLeagueRecords coachRecords = readCoachesLeagueRecords(files, coachesPath);
    updateLeagueRecords(records, coachRecords, game.sheet, game.coaches);
    files.write(coachesPath, textOf(coachesPath, coachRecords));
    if (game.counts)
        files.write(path, textOf(path, records));
}

/// A team or coach whose line, streak and result list a game moves.
struct Holder {
    Side side;
    RecordHolder kind;
    RecordFolder folder;
    TeamRecord record;
    Streak streak;
};

std::vector<Holder> readHolders(Files& files, const ImportedGame& game) {
    std::vector<Holder> holders;
    const auto read = [&](Side side, RecordHolder kind, const RecordFolder& folder) {
        holders.push_back({side, kind, folder, readTeamRecord(files, folder), readStreak(files, folder)});
    };
    for (const Side side : {Side::Away, Side::Home}) {
        if (game.counts)
            read(side, RecordHolder::Team,
                 paths::teamFolder(game.sheet.of(side).team) + seasonFolder(game.part));
        if (const auto& coach = game.coaches.of(side))
            read(side, RecordHolder::Coach, paths::coachFolder(*coach));
    }
    return holders;
}

void update(Holder& holder, const ImportedGame& game) {
    updateTeamRecord(holder.record, game.sheet, holder.side, game.overtime, holder.kind);
    updateStreak(holder.streak, resultLetter(game.sheet, holder.side));
}

void write(Files& files, const Holder& holder, const GameSheet& game) {
    writeStreak(files, holder.folder, holder.streak);
    writeTeamRecord(files, holder.folder, holder.record);
    appendResult(files, holder.folder, resultLetter(game, holder.side));
}

/// All lines are read before one is written, so that of a team that plays itself the home line stays.
void importLines(Files& files, const ImportedGame& game) {
    std::vector<Holder> holders = readHolders(files, game);
    for (Holder& holder : holders)
        update(holder, game);
    for (const Holder& holder : holders)
        write(files, holder, game.sheet);
}

void importCrowdMeter(Files& files, int crowdMeter) {
    if (crowdMeter > readNumber16(files, paths::CrowdMeter))
        files.write(paths::CrowdMeter, numberLine(crowdMeter));
}

} // namespace

void importGame(Files& files, const ImportedGame& game) {
    importPlayerRecords(files, game);
    importGoalieRecords(files, game);
    importLeagueRecords(files, game);
    importLines(files, game);
    if (game.counts) {
        importPlayers(files, game);
        importCrowdMeter(files, game.sheet.crowdMeter);
    }
}

} // namespace iceline
