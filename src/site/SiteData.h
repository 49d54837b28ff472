#pragma once

#include "log/HistoryLog.h"

namespace iceline {

class Application;

/// Writes what the pages show as data for other programs and for the site's own scripts into `data`: games,
/// standings, series, teams, players, goalies, records, and where each name leads. The windows have written
/// their pages before: the standings and the series are taken as they left them. A game of which the time is
/// not known has no date.
void writeSiteData(Application& app, const GameTimes& times);

} // namespace iceline
