#include "games/GameSheetReader.h"

#include "games/SaveStateMap.h"
#include "games/TeamSheetFields.h"

namespace iceline {

namespace {

void readTeam(const SaveState& save, Side side, TeamSheet& team) {
    for (const TeamSheetField& field : FirstBlockFields)
        team.*field.figure = save.figure(side, field.lowByte);
    team.AttackZone += 256 * save.figure(side, SaveStateMap::AttackZoneHigh);
    for (const PlayerArray& array : PlayerArrays)
        for (int row = 0; row < RosterRows; ++row)
            (team.*array.figures)[row] = save.figure(side, array.firstRow + row);
    const int secondBlock = side == Side::Home ? 0 : SaveStateMap::SecondAwayBlock;
    for (const TeamSheetField& field : SecondBlockFields)
        team.*field.figure = save.byteAt(secondBlock + field.lowByte);
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

} // namespace iceline
