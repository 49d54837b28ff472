#pragma once

namespace iceline {

class Application;

/// Writes what the pages show as data for other programs and for the site's own scripts into `data`: games,
/// standings, series, teams, players, goalies, records, and where each name leads. The windows have written
/// their pages before: the standings and the series are taken as they left them.
void writeSiteData(Application& app);

} // namespace iceline
