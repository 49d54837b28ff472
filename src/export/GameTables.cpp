#include "export/GameTables.h"

#include "games/BookEntry.h"
#include "games/Summaries.h"

#include <array>

namespace iceline {

namespace {

struct Figure {
    std::string_view column;
    int TeamFigures::*member;
};

/// The columns of `games` that each team has: "away shots", "home shots".
constexpr std::array Figures{
    Figure{"goals", &TeamFigures::Goals},
    Figure{"shots", &TeamFigures::Shots},
    Figure{"power-play goals", &TeamFigures::PPG},
    Figure{"power plays", &TeamFigures::PPA},
    Figure{"penalties", &TeamFigures::Penalties},
    Figure{"penalty minutes", &TeamFigures::PenM},
    Figure{"faceoffs won", &TeamFigures::FaceoffsWon},
    Figure{"body checks", &TeamFigures::BodyChecks},
    Figure{"passes", &TeamFigures::PassComp},
    Figure{"pass attempts", &TeamFigures::PassAtt},
    Figure{"attack zone", &TeamFigures::AttackZone},
};

constexpr std::array Sides{Side::Away, Side::Home};

std::string ofSide(Side side, std::string_view column) {
    return (side == Side::Away ? "away " : "home ") + std::string(column);
}

DataTable emptyGameTable() {
    DataTable table{"number", "time", "part", "kind", "away", "home", "overtime"};
    for (const Figure& figure : Figures)
        for (const Side side : Sides)
            table.addColumn(ofSide(side, figure.column));
    for (const Side side : Sides)
        table.addColumn(ofSide(side, "coach"));
    for (const std::string_view column :
         {"crowd meter", "first star", "first star's team", "second star", "second star's team", "third star",
          "third star's team", "save state", "corrected"})
        table.addColumn(column);
    return table;
}

std::string_view partName(PartOfYear part) {
    return part == PartOfYear::Season ? "season" : "playoffs";
}

std::string_view kindName(const GameImported& game) {
    const auto kind = gameKind(game.season, game.exhibition, game.part == PartOfYear::Playoffs);
    return !kind ? "" : *kind == GameKind::Exhibition ? "exhibition" : partName(game.part);
}

void addOptional(DataTable& table, const std::optional<std::string>& text) {
    if (text)
        table.text(*text);
    else
        table.blank();
}

void addGame(DataTable& table, const Step& step, const GameImported& game) {
    const GameSheet& sheet = game.sheet;
    table.number(step.gameNumber).text(step.entry.time).text(partName(game.part)).text(kindName(game));
    for (const Side side : Sides)
        table.text(TeamAbbr[sheet.of(side).team]);
    table.flag(game.lastPeriod >= OvertimePeriod);
    for (const Figure& figure : Figures)
        for (const Side side : Sides)
            table.number(sheet.of(side).*figure.member);
    addOptional(table, game.awayCoach);
    addOptional(table, game.homeCoach);
    table.number(sheet.crowdMeter);
    for (const LoggedStar& star : game.stars)
        table.text(star.name).text(TeamAbbr[star.team]);
    table.text(game.saveState).flag(step.corrected).endRow();
}

/// The player whom a byte of a summary names; blank for nobody.
void addPlayer(DataTable& table, const Roster& roster, int byte) {
    const auto row = rosterRow(byte);
    if (row && roster[*row].Name != EmptyRowName)
        table.text(roster[*row].Name);
    else
        table.blank();
}

/// The number of the game, then when in it something happened.
DataTable& addMoment(DataTable& table, const Step& step, int period, int seconds) {
    return table.number(step.gameNumber).number(period).number(seconds);
}

void addBlanks(DataTable& table, int columns) {
    for (int column = 0; column < columns; ++column)
        table.blank();
}

constexpr std::string_view textOf(Strength strength) {
    constexpr std::array<std::string_view, 5> Texts{"SH2", "SH", "EV", "PP", "PP2"};
    return Texts.at(static_cast<std::size_t>(strength));
}

void addGoals(DataTable& table, const Step& step, const GameSheet& sheet, const GameRosters& rosters) {
    for (const ScoringEntry& goal : sheet.goals) {
        addMoment(table, step, goal.period, goal.seconds);
        if (const auto strength = strengthOf(goal.type)) {
            const Side side = sideOf(goal.type);
            table.text(TeamAbbr[sheet.of(side).team]).text(textOf(*strength));
            for (const int player : {goal.scorer, goal.assist1, goal.assist2})
                addPlayer(table, rosters.of(side), player);
        } else {
            addBlanks(table, 5);
        }
        table.endRow();
    }
}

void addPenalties(DataTable& table, const Step& step, const GameSheet& sheet, const GameRosters& rosters) {
    for (const PenaltyEntry& penalty : sheet.penalties) {
        addMoment(table, step, penalty.period, penalty.seconds);
        if (const std::string_view infraction = infractionName(penalty.type); !infraction.empty()) {
            const Side side = sideOf(penalty.type);
            table.text(TeamAbbr[sheet.of(side).team]);
            addPlayer(table, rosters.of(side), penalty.player);
            table.text(infraction).number(minutesOf(static_cast<Infraction>(kindOf(penalty.type))));
        } else {
            addBlanks(table, 4);
        }
        table.endRow();
    }
}

} // namespace

GameTables gameTables(const std::vector<Step>& steps, KnownRosters rosters) {
    GameTables tables{
        emptyGameTable(),
        {"game", "period", "seconds", "team", "strength", "scorer", "first assist", "second assist"},
        {"game", "period", "seconds", "team", "player", "infraction", "minutes"}};
    const std::vector<const Step*> inBooks = gamesInBooks(steps);
    auto next = inBooks.begin();
    for (const Step& step : steps) {
        rosters.take(step);
        if (next == inBooks.end() || *next != &step)
            continue;
        ++next;
        const GameImported& game = *gameAt(step);
        const GameRosters ofGame = rosters.of(game.sheet);
        addGame(tables.games, step, game);
        addGoals(tables.goals, step, game.sheet, ofGame);
        addPenalties(tables.penalties, step, game.sheet, ofGame);
    }
    return tables;
}

} // namespace iceline
