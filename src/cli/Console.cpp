#include "cli/Console.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace iceline::cli {

namespace {

enum StandardStream { Input = 0, Output = 1, Error = 2 };

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

/// The value of a variable of the environment; `otherwise` where it is not set.
std::string variable(const char* name, const char* otherwise = "") {
    const char* value = std::getenv(name);
    return value ? value : otherwise;
}

bool takesColours(StandardStream stream) {
#ifdef _WIN32
    const HANDLE handle = GetStdHandle(stream == Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) && SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
#else
    return isTerminal(stream) && variable("TERM") != "dumb";
#endif
}

bool hasColours(StandardStream stream) {
    return variable("NO_COLOR").empty() && takesColours(stream);
}

#ifdef _WIN32
constexpr const char* SystemPager = "";

std::FILE* startPager(const std::string& command) {
    return _popen(command.c_str(), "wb");
}

/// Waits for the end of the pager. False when there was none to start.
bool awaitPager(std::FILE* pager) {
    constexpr int NotFound = 9009;
    const int status = _pclose(pager);
    return status != NotFound && status != 1;
}
#else
constexpr const char* SystemPager = "less -FRX";

std::FILE* startPager(const std::string& command) {
    std::signal(SIGPIPE, SIG_IGN); // a pager that ends early leaves the rest
    return popen(command.c_str(), "w");
}

/// Waits for the end of the pager. False when there was none to start.
bool awaitPager(std::FILE* pager) {
    constexpr int NotExecutable = 126;
    constexpr int NotFound = 127;
    const int status = WEXITSTATUS(pclose(pager));
    return status != NotExecutable && status != NotFound;
}
#endif

/// False when the command cannot be started.
bool showBy(const std::string& command, const std::string& text) {
    std::FILE* pager = startPager(command);
    if (!pager)
        return false;
    const auto former = std::signal(SIGINT, SIG_IGN); // the pager's own key
    std::fwrite(text.data(), 1, text.size(), pager);
    const bool shown = awaitPager(pager);
    std::signal(SIGINT, former);
    return shown;
}

} // namespace

Console standardConsole() {
    speakUtf8();
    std::ios::sync_with_stdio(false); // so that a stream tells an error of its input from its end
    return {std::cin,          std::cout,
            std::cerr,         isTerminal(Input),
            isTerminal(Error), hasColours(Output),
            hasColours(Error), isTerminal(Output) ? variable("PAGER", SystemPager) : ""};
}

void report(Console& console, const std::string& error) {
    console.out.flush();
    console.err << (console.errHasColours ? "\x1b[31miceline:\x1b[0m " : "iceline: ") << error << std::endl;
}

void show(Console& console, const std::string& text) {
    console.out.flush();
    if (console.pager.empty() || !showBy(console.pager, text))
        console.out << text;
}

} // namespace iceline::cli
