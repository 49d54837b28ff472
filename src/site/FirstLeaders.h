#pragma once

#include "league/PartOfYear.h"
#include "page/DataTable.h"

namespace iceline {

class Files;

/// The 50 skaters with the most points, in the order of the league leaders: what the page of leaders opens
/// with, so that it need not load everybody.
DataTable firstLeaders(Files& files, PartOfYear part);

} // namespace iceline
