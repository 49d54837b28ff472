#include "teams/TeamView.h"

#include "league/Numbers.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <array>

namespace iceline {

namespace {

constexpr std::array ShownFields{
    // The record
    "Wins", "Losses", "Ties", "Points", "WinPercent", "GP", "GF", "GA", "GFA", "GAA", "Diff", "PowerRanking",
    // At home
    "HW", "HL", "HT", "HWinPercent", "HGP", "HGF", "HGA", "HGFA", "HGAA", "HomeDiff", "HomePowerRanking",
    // Away
    "AW", "AL", "AT", "AWinPercent", "AGP", "AGF", "AGA", "AGFA", "AGAA", "AwayDiff", "AwayPowerRanking",
    // Overtime
    "OTW", "OTL", "OTT", "OTWPct", "OTGP",
    // Season totals
    "SOG", "SOGA", "SOGPct", "PPG", "PPA", "PPPct", "Pen", "PIM", "PenA", "PIMA", "PKG", "PKO", "PKPct",
    "FOW", "FOT", "FOWPct", "ByCks", "PassComp", "PassAtt", "PassAcc",
    // Averages a game
    "SOGPG", "SOGAPG", "PPGPG", "PPAPG", "PenPG", "PIMPG", "PenAPG", "PIMAPG", "PKGPG", "PKOPG", "AttZonePG",
    "FOWPG", "FOTPG", "ByCksPG", "PassCompPG", "PassAttPG",
    // Crowd
    "ArenaMeter"};

/// The text of any field of a record.
struct FieldText {
    const TeamRecord& record;

    std::string operator()(int TeamRecord::*member) const { return std::to_string(record.*member); }
    std::string operator()(TeamIndex TeamRecord::*member) const {
        return std::to_string((record.*member).number());
    }
    std::string operator()(double TeamRecord::*member) const { return numberText(record.*member); }
    std::string operator()(std::string TeamRecord::*member) const { return record.*member; }
    std::string operator()(RawItem TeamRecord::*member) const { return (record.*member).written; }
    template <class Value>
    std::string operator()(std::optional<Value> TeamRecord::*) const {
        return "";
    }
};

std::string fieldText(const TeamRecord& record, std::string_view name) {
    const auto fields = fieldsOf<TeamRecord>();
    const auto field = std::ranges::find(fields, name, &Field<TeamRecord>::name);
    return std::visit(FieldText{record}, field->member);
}

} // namespace

TeamView readTeamView(Files& files, const RecordFolder& folder) {
    TeamView view;
    view.record = readTeamRecord(files, folder);
    view.LeagueMeter = readNumber16(files, paths::CrowdMeter);
    view.streak = readStreak(files, folder);
    view.lastTen = readLastTen(files, folder, view.record.GameCount);
    return view;
}

std::vector<ShownFigure> shownFigures(const TeamView& view) {
    std::vector<ShownFigure> figures;
    for (const std::string_view name : ShownFields)
        figures.push_back({name, fieldText(view.record, name)});
    figures.push_back({"L10W", std::to_string(view.lastTen.wins)});
    figures.push_back({"L10L", std::to_string(view.lastTen.losses)});
    figures.push_back({"L10T", std::to_string(view.lastTen.ties)});
    figures.push_back({"Streak", view.streak.StreakLetter + " " + std::to_string(view.streak.StreakCount)});
    figures.push_back({"LeagueMeter", std::to_string(view.LeagueMeter)});
    return figures;
}

} // namespace iceline
