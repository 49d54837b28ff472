#pragma once

#include "cli/Printout.h"
#include "shell/Windows.h"

#include <string>

namespace iceline {
struct GameReport;
class Playoffs;
class Rankings;
class Standings;
class StatExtractor;
class AllTimeRecords;
class CoachStats;
class Options;
class PlayerProfiles;
class PlayerStats;
class TeamStats;
struct TeamView;
} // namespace iceline

namespace iceline::cli {

/// What `open` prints of a window: its content as tables, pleasant in 100 columns. Each window has one
/// function, in a file of its own, PrintStandings.cpp for instance, declared here and entered in the table
/// of WindowPrinters.cpp; twin windows share theirs. It prints what the window's Content holds and works no
/// figure out.
void printPlayoffs(const Playoffs& window, Printout& out);
void printRankings(const Rankings& window, Printout& out);
void printStandings(const Standings& window, Printout& out);
void printStatExtractor(const StatExtractor& window, Printout& out);
void printTeamStats(const TeamStats& window, Printout& out);
void printPlayerStats(const PlayerStats& window, Printout& out);
void printPlayerProfiles(const PlayerProfiles& window, Printout& out);
void printAllTimeRecords(const AllTimeRecords& window, Printout& out);
void printCoachStats(const CoachStats& window, Printout& out);
void printOptions(const Options& window, Printout& out);

/// All figures of a team or a coach.
void printTeamView(const TeamView& view, Printout& out);

/// The teams to choose from, under the prompt of the window's team list.
void printTeamList(const std::string& prompt, Printout& out);

/// A game's report, with its summaries.
void printGame(const GameReport& game, Printout& out);

/// The function that prints a window of that kind, given the window.
using WindowPrinter = void (*)(const Window&, Printout&);
WindowPrinter windowPrinter(WindowId id);

} // namespace iceline::cli
