#include "cli/Console.h"

#include <iostream>

#ifdef _WIN32
#include <cstdlib>
#include <io.h>
#include <windows.h>
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

/// What is typed and shown in the terminal is UTF-8 while the program runs.
void speakUtf8() {
#ifdef _WIN32
    static const UINT input = GetConsoleCP();
    static const UINT output = GetConsoleOutputCP();
    std::atexit([] {
        SetConsoleCP(input);
        SetConsoleOutputCP(output);
    });
    SetConsoleCP(CP_UTF8);
    SetConsoleOutputCP(CP_UTF8);
#endif
}

} // namespace

Console standardConsole() {
    speakUtf8();
    std::ios::sync_with_stdio(false); // so that a stream tells an error of its input from its end
    return {std::cin, std::cout, std::cerr, isTerminal(Input), isTerminal(Error)};
}

void report(Console& console, const std::string& error) {
    console.out.flush();
    console.err << "iceline: " << error << std::endl;
}

} // namespace iceline::cli
