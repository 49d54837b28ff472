#include "books/TeamRecordUpdate.h"

#include "league/Numbers.h"

#include <algorithm>
#include <array>

namespace iceline {

namespace {

using R = TeamRecord;

/// The fields of the games of one kind: all of them, those at home, those away.
struct Split {
    int R::*wins;
    int R::*losses;
    int R::*ties;
    int R::*games;
    double R::*winPercent;
    int R::*goalsFor;
    int R::*goalsAgainst;
    double R::*goalsForAverage;
    double R::*goalsAgainstAverage;
    double R::*difference;
    double R::*powerRanking;
};

constexpr Split AllGames{&R::Wins, &R::Losses, &R::Ties, &R::GP,   &R::WinPercent,  &R::GF,
                         &R::GA,   &R::GFA,    &R::GAA,  &R::Diff, &R::PowerRanking};
constexpr Split HomeGames{&R::HW,  &R::HL,   &R::HT,   &R::HGP,      &R::HWinPercent,     &R::HGF,
                          &R::HGA, &R::HGFA, &R::HGAA, &R::HomeDiff, &R::HomePowerRanking};
constexpr Split AwayGames{&R::AW,  &R::AL,   &R::AT,   &R::AGP,      &R::AWinPercent,     &R::AGF,
                          &R::AGA, &R::AGFA, &R::AGAA, &R::AwayDiff, &R::AwayPowerRanking};

/// A count of attempts in a game and how many of them were made.
struct Pair {
    int TeamSheet::*madeInGame;
    int TeamSheet::*attemptsInGame;
    int R::*made;
    double R::*madeAverage;
    int R::*attempts;
    double R::*attemptsAverage;
    double R::*percent;
};

constexpr std::array Pairs{
    Pair{&TeamSheet::PairAMade, &TeamSheet::PairAAtt, &R::PairAMade, &R::PairAMadePG, &R::PairAAtt,
         &R::PairAAttPG, &R::PairAPct},
    Pair{&TeamSheet::PairBMade, &TeamSheet::PairBAtt, &R::PairBMade, &R::PairBMadePG, &R::PairBAtt,
         &R::PairBAttPG, &R::PairBPct},
    Pair{&TeamSheet::PairCMade, &TeamSheet::PairCAtt, &R::PairCMade, &R::PairCMadePG, &R::PairCAtt,
         &R::PairCAttPG, &R::PairCPct},
};

/// Raises the one of three counters that a result belongs to.
template <class Counter>
void count(R& record, const std::string& result, Counter R::*wins, Counter R::*losses, Counter R::*ties) {
    ++(record.*(result == "W" ? wins : result == "L" ? losses : ties));
}

void addResult(R& record, const Split& split, const TeamSheet& own, const TeamSheet& other,
               const std::string& result) {
    const int games = ++(record.*split.games);
    record.*split.goalsFor += own.Goals;
    record.*split.goalsAgainst += other.Goals;
    record.*split.goalsForAverage = r2(perGame(record.*split.goalsFor, games));
    record.*split.goalsAgainstAverage = r2(perGame(record.*split.goalsAgainst, games));
    count(record, result, split.wins, split.losses, split.ties);
    record.*split.winPercent = r3(perGame(record.*split.wins, games));
}

/// The wins, plus the goal difference a game weighted by the share of the possible points taken.
double powerRanking(int wins, double points, int games, double difference) {
    return games == 0 ? 0 : r2(wins + points / (2 * games) * difference);
}

void rank(R& record, const Split& split, int points) {
    const int games = record.*split.games;
    const double difference = r2(record.*split.goalsForAverage - record.*split.goalsAgainstAverage);
    record.*split.difference = games == 0 ? 0 : difference;
    record.*split.powerRanking = powerRanking(record.*split.wins, points, games, record.*split.difference);
}

void rankAll(R& record) {
    rank(record, AllGames, record.Points);
    rank(record, HomeGames, 2 * record.HW + record.HT);
    rank(record, AwayGames, 2 * record.AW + record.AT);
}

void countConference(R& record, const GameSheet& game, const std::string& result) {
    if (TeamConference[game.home.team] == TeamConference[game.away.team])
        count(record, result, &R::SameConfW, &R::SameConfL, &R::SameConfT);
    else
        count(record, result, &R::OtherConfW, &R::OtherConfL, &R::OtherConfT);
}

void countOvertime(R& record, const std::string& result) {
    ++record.OTGP;
    count(record, result, &R::OTW, &R::OTL, &R::OTT);
    record.OTWPct = r3(perGame(record.OTW, record.OTGP));
}

void add(R& record, int R::*total, int figure) {
    addTo(record, total, figure);
}

void add(R& record, double R::*total, int figure) {
    record.*total += figure;
}

/// Adds a figure of the game to its running sum and renews the average a game.
template <class Total>
void addUp(R& record, Total R::*total, double R::*average, int figure) {
    add(record, total, figure);
    record.*average = r1(perGame(record.*total, record.GP));
}

void addShots(R& record, const TeamSheet& own, const TeamSheet& other, RecordHolder holder) {
    addUp(record, &R::SOG, &R::SOGPG, own.Shots);
    addUp(record, &R::SOGA, &R::SOGAPG, other.Shots);
    record.SOGPct =
        holder == RecordHolder::Team ? pct(record.GF, record.SOG) : shootingPct(record.GF, record.SOG);
}

void addPowerPlays(R& record, const TeamSheet& own, const TeamSheet& other) {
    addUp(record, &R::PPG, &R::PPGPG, own.PPG);
    if (record.GF == 0)
        record.PPGPG = 0;
    addUp(record, &R::PPA, &R::PPAPG, own.PPA);
    record.PPPct = pct(record.PPG, record.PPA);
    addUp(record, &R::PPAux, &R::PPAuxPG, own.PPAux);
    addUp(record, &R::PKG, &R::PKGPG, other.PPG);
    addUp(record, &R::PKO, &R::PKOPG, other.PPA);
    record.PKPct = pct(record.PKO - record.PKG, record.PKO);
}

void addPowerPlayTime(R& record, int seconds) {
    addUp(record, &R::PPTime, &R::PPTimePG, seconds);
    record.PPTimePGText = RawItem::text(minutesText(record.PPTimePG));
}

void addPenalties(R& record, const TeamSheet& own, const TeamSheet& other, RecordHolder holder) {
    addUp(record, &R::Pen, &R::PenPG, own.Penalties);
    if (holder == RecordHolder::Team)
        record.PenPG = wholeNumber(record.PenPG);
    addUp(record, &R::PIM, &R::PIMPG, own.PenM);
    addUp(record, &R::PenA, &R::PenAPG, other.Penalties);
    addUp(record, &R::PIMA, &R::PIMAPG, other.PenM);
}

void addSecondBlock(R& record, const TeamSheet& own, const TeamSheet& other, RecordHolder holder) {
    addUp(record, &R::AuxFor, &R::AuxForPG, own.AuxFor);
    if (holder == RecordHolder::Team)
        addUp(record, &R::AuxAgainst, &R::AuxAgainstPG, other.AuxFor);
    for (const Pair& pair : Pairs) {
        addUp(record, pair.made, pair.madeAverage, own.*pair.madeInGame);
        addUp(record, pair.attempts, pair.attemptsAverage, own.*pair.attemptsInGame);
        record.*pair.percent = pct(record.*pair.made, record.*pair.attempts);
    }
}

void addPlay(R& record, const TeamSheet& own, const TeamSheet& other) {
    addTo(record, &R::AttZone, own.AttackZone);
    record.AttZoneSecPG = perGame(record.AttZone, record.GP);
    record.AttZonePG = minutesText(record.AttZoneSecPG);
    addUp(record, &R::FOW, &R::FOWPG, own.FaceoffsWon);
    addUp(record, &R::FOT, &R::FOTPG, own.FaceoffsWon + other.FaceoffsWon);
    record.FOWPct = pct(record.FOW, record.FOT);
    addUp(record, &R::ByCks, &R::ByCksPG, own.BodyChecks);
    addUp(record, &R::PassComp, &R::PassCompPG, own.PassComp);
    addUp(record, &R::PassAtt, &R::PassAttPG, own.PassAtt);
    record.PassAcc = pct(record.PassComp, record.PassAtt);
}

} // namespace

std::string resultLetter(const GameSheet& game, Side side) {
    const int own = game.of(side).Goals;
    const int other = game.of(otherSide(side)).Goals;
    return own > other ? "W" : own < other ? "L" : "T";
}

void updateTeamRecord(TeamRecord& record, const GameSheet& game, Side side, bool overtime,
                      RecordHolder holder) {
    const TeamSheet& own = game.of(side);
    const TeamSheet& other = game.of(otherSide(side));
    const std::string result = resultLetter(game, side);

    ++record.GameCount;
    addResult(record, AllGames, own, other, result);
    addResult(record, side == Side::Home ? HomeGames : AwayGames, own, other, result);
    record.Points += result == "W" ? 2 : result == "T" ? 1 : 0;
    rankAll(record);
    countConference(record, game, result);
    if (holder == RecordHolder::Coach)
        record.LastResult = result;
    if (overtime)
        countOvertime(record, result);

    addShots(record, own, other, holder);
    addPowerPlays(record, own, other);
    if (side == Side::Away)
        addPowerPlayTime(record, game.awayPPTime);
    addPenalties(record, own, other, holder);
    addSecondBlock(record, own, other, holder);
    addPlay(record, own, other);
    if (side == Side::Home)
        record.ArenaMeter = std::max<double>(record.ArenaMeter, game.crowdMeter);
}

void updateStreak(Streak& streak, const std::string& result) {
    streak.StreakCount = streak.StreakLetter == result ? streak.StreakCount + 1 : 1;
    streak.StreakLetter = result;
}

} // namespace iceline
