#pragma once

#include "shell/Windows.h"

#include <ostream>

namespace iceline {
class Playoffs;
class Standings;
class StatExtractor;
} // namespace iceline

namespace iceline::cli {

/// What `open` prints of a window: its content as text tables, pleasant in 100 columns. Each window has one
/// function, in a file of its own, PrintStandings.cpp for instance, declared here and entered in the table
/// of WindowPrinters.cpp; twin windows share theirs. It prints what the window's Content holds and works no
/// figure out. TextTable lays out columns; sideBySide() puts two tables beside each other.
void printPlayoffs(const Playoffs& window, std::ostream& out);
void printStandings(const Standings& window, std::ostream& out);
void printStatExtractor(const StatExtractor& window, std::ostream& out);

/// The game that was read last in the game window, which must hold one.
void printGame(const StatExtractor& window, std::ostream& out);

/// The function that prints a window of that kind, given the window; none where `open` does not know it yet.
using WindowPrinter = void (*)(const Window&, std::ostream&);
WindowPrinter windowPrinter(WindowId id);

} // namespace iceline::cli
