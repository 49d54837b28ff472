#pragma once

#include "shell/Windows.h"

#include <ostream>
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

/// What `open` prints of a window: its content as text tables, pleasant in 100 columns. Each window has one
/// function, in a file of its own, PrintStandings.cpp for instance, declared here and entered in the table
/// of WindowPrinters.cpp; twin windows share theirs. It prints what the window's Content holds and works no
/// figure out. TextTable lays out columns; sideBySide() puts two tables beside each other.
void printPlayoffs(const Playoffs& window, std::ostream& out);
void printRankings(const Rankings& window, std::ostream& out);
void printStandings(const Standings& window, std::ostream& out);
void printStatExtractor(const StatExtractor& window, std::ostream& out);
void printTeamStats(const TeamStats& window, std::ostream& out);
void printPlayerStats(const PlayerStats& window, std::ostream& out);
void printPlayerProfiles(const PlayerProfiles& window, std::ostream& out);
void printAllTimeRecords(const AllTimeRecords& window, std::ostream& out);
void printCoachStats(const CoachStats& window, std::ostream& out);
void printOptions(const Options& window, std::ostream& out);

/// All figures of a team or a coach.
void printTeamView(const TeamView& view, std::ostream& out);

/// The teams to choose from, under the prompt of the window's team list.
void printTeamList(const std::string& prompt, std::ostream& out);

/// A game's report, with its summaries.
void printGame(const GameReport& game, std::ostream& out);

/// The function that prints a window of that kind, given the window.
using WindowPrinter = void (*)(const Window&, std::ostream&);
WindowPrinter windowPrinter(WindowId id);

} // namespace iceline::cli
