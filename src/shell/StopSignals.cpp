#include "shell/StopSignals.h"

#include <array>
#include <csignal>

namespace iceline {

namespace {

#ifdef _WIN32
constexpr std::array Signals{SIGINT, SIGTERM};
#else
constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};
#endif

using Handler = void (*)(int);

volatile std::sig_atomic_t signalReceived = 0;
int depth = 0;
std::array<Handler, Signals.size()> handlersBefore{};

extern "C" void rememberSignal(int signal) {
    signalReceived = signal;
    std::signal(signal, signal == SIGINT ? SIG_DFL : rememberSignal);
}

} // namespace

StopSignals::StopSignals() {
    if (++depth > 1)
        return;
    signalReceived = 0;
    for (std::size_t i = 0; i < Signals.size(); ++i) {
        handlersBefore[i] = std::signal(Signals[i], rememberSignal);
        if (handlersBefore[i] == SIG_IGN)
            std::signal(Signals[i], SIG_IGN);
    }
}

StopSignals::~StopSignals() {
    if (--depth > 0)
        return;
    for (std::size_t i = 0; i < Signals.size(); ++i)
        std::signal(Signals[i], handlersBefore[i]);
}

int StopSignals::received() {
    return signalReceived;
}

void ignoreSignalsOfWrites() {
#ifndef _WIN32
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

} // namespace iceline
