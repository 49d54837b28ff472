#pragma once

#include "store/TeamRecord.h"

namespace iceline {

/// A fraction of a team's record of the regular season, times `scale`, as the nearest whole number, a tie to
/// the even one. `scale` is 1000 at most.
///
/// Any figure of a record whose counts fit the file is taken, however long the season. Throws FileError,
/// which names the file and the item, for one that no season comes to.
int wholeFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*figure, int scale = 1);

} // namespace iceline
