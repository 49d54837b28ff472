#pragma once

#include <istream>
#include <ostream>
#include <string>

namespace iceline::cli {

/// The streams that a call of the program talks through.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool inIsTerminal = false;
    bool errIsTerminal = false;
    bool outHasColours = false;
    bool errHasColours = false;
    std::string pager = {}; ///< the shell's command that shows long output, which it reads; none when empty
};

/// Standard input, output and error. Terminals have colours, unless NO_COLOR is set, and a pager: that of
/// PAGER, or what the system has. To be called before anything is read or written.
Console standardConsole();

/// Writes an error of use or of files: one line on standard error, after everything said before.
void report(Console& console, const std::string& error);

/// Shows a text that may be long, by the pager where there is one that can be started.
void show(Console& console, const std::string& text);

} // namespace iceline::cli
