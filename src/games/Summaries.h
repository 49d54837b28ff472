#pragma once

#include "games/GameReport.h"

#include <string>
#include <string_view>

namespace iceline {

/// The scoring summary in columns for the window: a head and a line for each goal, ended by CR LF. A goal
/// whose type byte says no strength shows period and time alone.
std::string scoringSummaryText(const GameReport& report);

/// The infraction that a penalty's type byte says; empty for a byte that says none.
std::string_view infractionName(int typeByte);

/// The penalty summary in columns, in the same way.
std::string penaltySummaryText(const GameReport& report);

/// The rows of the page's scoring table, a line each, filled with empty ones to the height of the penalty
/// table.
std::string scoringRows(const GameReport& report);

/// The rows of the page's penalty table, filled to the height of the scoring table.
std::string penaltyRows(const GameReport& report);

} // namespace iceline
