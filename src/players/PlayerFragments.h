#pragma once

#include "files/Files.h"
#include "league/TeamTable.h"
#include "store/LeaguePaths.h"

namespace iceline {

/// Writes the fragments of a team in `PStats` or `PlayoffPStats`: its record, its leaders, and its skaters
/// and goalies in the order of each column. Numbers from 0 are descending, those after the name's ascending.
void writePlayerFragments(Files& files, TeamIndex team, PartOfYear part);

} // namespace iceline
