#include "capture/StatExtractor.h"
#include "shell/Windows.h"
#include "standings/Playoffs.h"
#include "standings/Standings.h"

namespace iceline {

namespace {

/// A row whose window is not built yet.
constexpr std::unique_ptr<Window> (*None)(Application&) = nullptr;

template <class Object>
std::unique_ptr<Window> make(Application& app) {
    return std::make_unique<Object>(app);
}

constexpr std::array<CatalogueRow, WindowCount> Catalogue{{
    {WindowId::StatExtractor, "Stat Extractor", "StatExtractor", make<StatExtractor>},
    {WindowId::PlayerStats, "Player Stats", "PlayerStats", None},
    {WindowId::TeamStats, "Team Stats", "TeamStats", None},
    {WindowId::Standings, "Standings", "Standings", make<Standings>},
    {WindowId::Rankings, "Rankings", "Rankings", None},
    {WindowId::PlayerProfiles, "Player Profiles", "PlayerProfiles", None},
    {WindowId::Playoffs, "Playoff Tree", "Playoffs", make<Playoffs>},
    {WindowId::PlayoffPlayerStats, "Playoff Player Stats", "PlayoffPlayerStats", None},
    {WindowId::PlayoffTeamStats, "Playoff Team Stats", "PlayoffTeamStats", None},
    {WindowId::PlayoffRankings, "Playoff Rankings", "PlayoffRankings", None},
    {WindowId::PlayoffPlayerProfiles, "Playoff Player Profiles", "PlayoffPlayerProfiles", None},
    {WindowId::CoachStats, "Coaches Stats", "CoachStats", None},
    {WindowId::AllTimeRecords, "All-Time Records", "AllTimeRecords", None},
    {WindowId::PlayoffAllTimeRecords, "Playoff All-Time Records", "PlayoffAllTimeRecords", None},
    {WindowId::Options, "Options", "Options", None},
}};

} // namespace

std::span<const CatalogueRow> windowCatalogue() {
    return Catalogue;
}

StatExtractor& Windows::statExtractor() {
    return static_cast<StatExtractor&>(use(WindowId::StatExtractor));
}

Standings& Windows::standings() {
    return static_cast<Standings&>(use(WindowId::Standings));
}

} // namespace iceline
