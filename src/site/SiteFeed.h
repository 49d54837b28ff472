#pragma once

#include "log/HistoryLog.h"
#include "site/SiteSettings.h"

#include <chrono>

namespace iceline {

/// Writes `feed.xml`, an Atom feed of the latest games, and `sitemap.xml`, the addresses of all pages, for a
/// league that has given the name and the address of its site. A game's time in the feed is that of its
/// import; where `times` does not know it, that of the first run that told of the game, which is `now` for a
/// new one.
void writeFeedAndMap(Files& files, const SiteSettings& settings, const GameTimes& times,
                     std::chrono::sys_seconds now);

} // namespace iceline
