#pragma once

namespace iceline {

class Application;

/// Ends the regular season when no team is below SeasonLength games: turns PlayoffMode on, works on the
/// play-off files from then on, renews standings and seeds, and fills the first round of the bracket. Says so
/// once start-up is done. Does nothing while the play-offs are on.
void checkSeason(Application& app);

/// The two halves of checkSeason(), for an operation that must read everything before its changes reach the
/// disk. seasonIsOver() says whether no team has games left, and if so renews the standings, from which the
/// play-offs are seeded; it throws FileError when a file cannot be read. turnToPlayoffs() reads nothing.
bool seasonIsOver(Application& app);
void turnToPlayoffs(Application& app);

/// Works on the files of the regular season again.
void returnToSeason(Application& app);

} // namespace iceline
