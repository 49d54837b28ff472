#include "cli/Console.h"

#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace iceline::cli {

namespace {

enum StandardStream { Input = 0, Error = 2 };

bool isTerminal(StandardStream stream) {
#ifdef _WIN32
    return _isatty(stream) != 0;
#else
    return isatty(stream) != 0;
#endif
}

} // namespace

Console standardConsole() {
    std::ios::sync_with_stdio(false); // so that a stream tells an error of its input from its end
    return {std::cin, std::cout, std::cerr, isTerminal(Input), isTerminal(Error)};
}

void report(Console& console, const std::string& error) {
    console.out.flush();
    console.err << "iceline: " << error << std::endl;
}

} // namespace iceline::cli
