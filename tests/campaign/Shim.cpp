/// Preloaded into a program, stands between it and the system for what lies in one folder. Environment:
///
///   SHIM_ROOT=FOLDER          the folder; calls about anything else pass untouched
///   SHIM_FAULT="KIND N on"    the N-th call that KIND suits fails; "once" lets later ones succeed, "on" none
///   SHIM_KILL_AT=N            SIGKILL in the N-th call that changes the folder; a write is left half done
///   SHIM_KILL_AFTER=USEC      SIGKILL so many microseconds after the first call about the folder
///   SHIM_LOG=FILE             records each change and sync, a line each, items between tabs
///   SHIM_NO_SYNC=N            the N-th sync does nothing and is not recorded; 0 for none of them
///   SHIM_COUNTS=FILE          writes how many calls suit each kind
///
/// KIND is ENOSPC, EIO, EACCES, EROFS, EMFILE, or SHORT for a write that takes half of its bytes.
#include "Shim.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <unistd.h>
#include <unordered_map>
#include <utility>

namespace shim {

namespace {

struct Kind {
    const char* name;
    int error;
    unsigned suits;
    int calls;
};

std::array kinds{Kind{"ENOSPC", ENOSPC, OpenToWrite | Write | Name | Sync, 0},
                 Kind{"EIO", EIO, Look | OpenToRead | Read | OpenToWrite | Write | Name | Sync | Close, 0},
                 Kind{"EACCES", EACCES, Look | OpenToRead | OpenToWrite | Name, 0},
                 Kind{"EROFS", EROFS, OpenToWrite | Write | Name | Sync, 0},
                 Kind{"EMFILE", EMFILE, OpenToRead | OpenToWrite, 0},
                 Kind{"SHORT", 0, Write, 0}};

int numberFrom(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}

std::string textFrom(const char* name) {
    const char* text = std::getenv(name);
    return text ? text : "";
}

struct State {
    State() {
        std::array<char, 16> kind{}, mode{};
        if (std::sscanf(textFrom("SHIM_FAULT").c_str(), "%15s %d %15s", kind.data(), &faultAt, mode.data()) ==
            3)
            fault = std::ranges::find_if(kinds,
                                         [&](const Kind& k) { return kind.data() == std::string(k.name); });
        once = mode.data() == std::string("once");
        if (!logName.empty())
            log = std::fopen(logName.c_str(), "w");
    }

    const std::string root = textFrom("SHIM_ROOT");
    const std::string logName = textFrom("SHIM_LOG");
    Kind* fault = kinds.end();
    int faultAt = 0;
    bool once = false;
    int killAt = numberFrom("SHIM_KILL_AT", 0);
    int killAfter = numberFrom("SHIM_KILL_AFTER", 0);
    const int noSync = numberFrom("SHIM_NO_SYNC", -1);
    int syncs = 0;
    std::FILE* log = nullptr;
    std::unordered_map<int, std::string> handles; ///< paths in the root by handle
};

/// Never destroyed, since the program's own destructors still close files.
State& state() {
    static State& one = *new State;
    return one;
}

void startTimer() {
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    const long nanoseconds = 1000L * std::exchange(state().killAfter, 0);
    const itimerspec when{{0, 0}, {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000}};
    timer_t timer{};
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) == 0)
        timer_settime(timer, 0, &when, nullptr);
}

[[gnu::destructor]] void writeCounts() {
    const std::string name = textFrom("SHIM_COUNTS");
    std::FILE* file = name.empty() ? nullptr : std::fopen(name.c_str(), "w");
    if (!file)
        return;
    for (const Kind& kind : kinds)
        std::fprintf(file, "%s %d\n", kind.name, kind.calls);
    std::fclose(file);
}

} // namespace

std::string inRoot(const char* path) {
    const std::string& root = state().root;
    if (root.empty() || std::strncmp(path, root.c_str(), root.size()) != 0)
        return "";
    if (path[root.size()] == '\0')
        return ".";
    return path[root.size()] == '/' ? path + root.size() + 1 : "";
}

std::string pathOf(int handle) {
    const auto file = state().handles.find(handle);
    return file == state().handles.end() ? "" : file->second;
}

bool fails(Call call) {
    if (state().killAfter > 0)
        startTimer();
    bool failsNow = false;
    for (Kind& kind : kinds) {
        if ((kind.suits & call) == 0)
            continue;
        ++kind.calls;
        if (&kind == state().fault &&
            (state().once ? kind.calls == state().faultAt : kind.calls >= state().faultAt)) {
            errno = kind.error;
            failsNow = true;
        }
    }
    return failsNow;
}

bool diesNow() {
    return state().killAt > 0 && --state().killAt == 0;
}

void dieIfDue() {
    if (diesNow())
        std::raise(SIGKILL);
}

void note(const std::string& line) {
    if (state().log) {
        std::fputs((line + "\n").c_str(), state().log);
        std::fflush(state().log);
    }
}

bool takesSync() {
    ++state().syncs;
    return state().noSync != 0 && state().noSync != state().syncs;
}

void opened(int handle, const std::string& path) {
    state().handles[handle] = path;
}

void closed(int handle) {
    state().handles.erase(handle);
}

} // namespace shim
