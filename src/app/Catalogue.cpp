#include "app/Catalogue.h"

#include "coaches/CoachStats.h"
#include "games/StatExtractor.h"
#include "leaders/Rankings.h"
#include "players/PlayerProfiles.h"
#include "players/PlayerStats.h"
#include "playoffs/Playoffs.h"
#include "records/AllTimeRecords.h"
#include "season/Options.h"
#include "standings/Standings.h"
#include "teams/TeamStats.h"

#include <algorithm>

namespace iceline {

namespace {

template <class Object>
std::unique_ptr<Window> make(Application& app) {
    return std::make_unique<Object>(app);
}

/// Twin windows are one class that works on the one part of the year or the other.
template <class Object, PartOfYear Part>
std::unique_ptr<Window> make(Application& app) {
    return std::make_unique<Object>(app, Part);
}

constexpr WindowTable<CatalogueRow> Catalogue{{
    {WindowId::StatExtractor, "Stat Extractor", "StatExtractor", make<StatExtractor>},
    {WindowId::PlayerStats, "Player Stats", "PlayerStats", make<PlayerStats, PartOfYear::Season>},
    {WindowId::TeamStats, "Team Stats", "TeamStats", make<TeamStats, PartOfYear::Season>},
    {WindowId::Standings, "Standings", "Standings", make<Standings>},
    {WindowId::Rankings, "Rankings", "Rankings", make<Rankings, PartOfYear::Season>},
    {WindowId::PlayerProfiles, "Player Profiles", "PlayerProfiles", make<PlayerProfiles, PartOfYear::Season>},
    {WindowId::Playoffs, "Playoff Tree", "Playoffs", make<Playoffs>},
    {WindowId::PlayoffPlayerStats, "Playoff Player Stats", "PlayoffPlayerStats",
     make<PlayerStats, PartOfYear::Playoffs>},
    {WindowId::PlayoffTeamStats, "Playoff Team Stats", "PlayoffTeamStats",
     make<TeamStats, PartOfYear::Playoffs>},
    {WindowId::PlayoffRankings, "Playoff Rankings", "PlayoffRankings", make<Rankings, PartOfYear::Playoffs>},
    {WindowId::PlayoffPlayerProfiles, "Playoff Player Profiles", "PlayoffPlayerProfiles",
     make<PlayerProfiles, PartOfYear::Playoffs>},
    {WindowId::CoachStats, "Coaches Stats", "CoachStats", make<CoachStats>},
    {WindowId::AllTimeRecords, "All-Time Records", "AllTimeRecords",
     make<AllTimeRecords, PartOfYear::Season>},
    {WindowId::PlayoffAllTimeRecords, "Playoff All-Time Records", "PlayoffAllTimeRecords",
     make<AllTimeRecords, PartOfYear::Playoffs>},
    {WindowId::Options, "Options", "Options", make<Options>},
}};

static_assert(isComplete(Catalogue));

} // namespace

WindowCatalogue windowCatalogue() {
    return Catalogue;
}

const CatalogueRow& catalogueRow(WindowId id) {
    return rowOf(Catalogue, id);
}

std::optional<WindowId> windowByName(std::string_view name) {
    const auto row = std::ranges::find(Catalogue, name, &CatalogueRow::name);
    return row == Catalogue.end() ? std::nullopt : std::optional(row->id);
}

} // namespace iceline
