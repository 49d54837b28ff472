#include "games/GameSheetReader.h"

#include "files/NativePath.h"
#include "games/BoxScorePage.h"
#include "games/SaveStateMap.h"
#include "league/TeamSheetFields.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"
#include "text/Names.h"

namespace iceline {

namespace {

void readTeam(const SaveState& save, Side side, TeamSheet& team) {
    for (const TeamSheetField& field : FirstBlockFields)
        team.*field.member = save.figure(side, field.lowByte);
    team.AttackZone += 256 * save.figure(side, SaveStateMap::AttackZoneHigh);
    for (const PlayerArray& array : PlayerArrays)
        for (const RosterIndex row : AllRosterRows)
            (team.*array.member)[row] = save.figure(side, array.firstRow + row.number());
    const int secondBlock = side == Side::Home ? 0 : SaveStateMap::SecondAwayBlock;
    for (const TeamSheetField& field : SecondBlockFields)
        team.*field.member = save.byteAt(secondBlock + field.lowByte);
}

GameRosters readRosters(Files& files, const GameSheet& game) {
    return {readRoster(files, paths::playersList(game.home.team)),
            readRoster(files, paths::playersList(game.away.team))};
}

/// The byte in the scorer's place of the entry that ends where the scoring table ends.
int lastScorer(const SaveState& save) {
    constexpr int FromEnd = 3;
    const int end = SaveStateMap::ScoringTable + save.byteAt(SaveStateMap::ScoringLength);
    return save.byteAt(end - FromEnd);
}

/// The game's page gets the file's name, which must be possible on every system that the site may go to.
std::optional<std::string> pageNameRefusal(const std::string& path) {
    const auto problem = namingProblem(boxScorePageName(fromNative(toNative(path).filename())));
    if (!problem)
        return std::nullopt;
    return path + ": the game's page would be named after this file, and the name of a page " + *problem;
}

} // namespace

GameSheet readGameSheet(const SaveState& save) {
    GameSheet game(save.team(Side::Home), save.team(Side::Away));
    readTeam(save, Side::Home, game.home);
    readTeam(save, Side::Away, game.away);
    game.crowdMeter = save.byteAt(SaveStateMap::CrowdMeter);
    game.awayPPTime = save.wordAt(SaveStateMap::AwayPPTimeHigh);
    game.goals = save.scoringEntries();
    game.penalties = save.penaltyEntries();
    return game;
}

PlayedGame readGame(Files& files, const std::string& path) {
    const SaveState save = SaveState::read(files, path);
    PlayedGame game{readGameSheet(save), {}, lastScorer(save), save.refusal(), save.doubt()};
    if (!game.refusal)
        game.refusal = pageNameRefusal(path);
    if (!game.refusal)
        game.rosters = readRosters(files, game.sheet);
    return game;
}

} // namespace iceline
