#pragma once

#include "files/Files.h"
#include "log/Entry.h"

#include <functional>
#include <optional>
#include <string>

namespace iceline {

class Application;

/// A season that is over is kept twice, under a name of its own: in `Seasons/<name>` as a whole league with
/// books, history and site, and in `Seasons/<name>` of the site for whoever reads that.

/// Why a season cannot be kept under that name, in a sentence; none when it can.
std::optional<std::string> seasonNameProblem(Files& files, const std::string& name);

/// Brings the site up to date, makes both copies of the season, reads them back and compares; then
/// `beginNext` carries out the operation that begins the new season, of which settleKeptSeason() is part:
/// until that is on the disk the copies are broken ones. Throws FileError when any of it fails, the copies
/// removed.
void keepSeason(Application& app, const std::string& name, const std::function<void()>& beginNext);
void settleKeptSeason(Files& files);

/// Removes the copies of a season that were broken off, and returns its name; none when there are none. While
/// a journal is unfinished nothing happens, as it may settle them.
std::optional<std::string> removeBrokenSeason(Files& files);

/// Keeps the copies of a season aside while the new one is undone, and brings them back. `time` is when it
/// was begun. Copies that are not there are passed over.
void putSeasonAside(Files& files, const NewSeason& season, const std::string& time);
void bringSeasonBack(Files& files, const NewSeason& season, const std::string& time);

} // namespace iceline
