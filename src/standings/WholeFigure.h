#pragma once

#include "store/TeamRecord.h"

namespace iceline {

/// A fraction of a team's record of the regular season, times `scale`, as a whole number of 16 bits, a tie to
/// the even one. Throws FileError naming the file and the item when it does not fit.
int wholeFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*figure, int scale = 1);

} // namespace iceline
