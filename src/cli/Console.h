#pragma once

#include <istream>
#include <ostream>

namespace iceline::cli {

/// The streams that a call of the program talks through.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool inIsTerminal = false;
    bool errIsTerminal = false;
};

/// Standard input, output and error. To be called before anything is read or written.
Console standardConsole();

/// Writes an error of use or of files: one line on standard error, after everything said before.
void report(Console& console, const std::string& error);

} // namespace iceline::cli
