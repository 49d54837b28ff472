#pragma once

namespace iceline {

class Application;

/// Ends the regular season when no team is below SeasonLength games: turns PlayoffMode on, works on the
/// play-off files from then on, renews standings and seeds, and fills the first round of the bracket. Says so
/// once start-up is done. Does nothing while the play-offs are on.
void checkSeason(Application& app);

} // namespace iceline
