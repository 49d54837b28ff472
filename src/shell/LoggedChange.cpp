#include "shell/LoggedChange.h"

#include <array>
#include <ctime>

namespace iceline {

std::string utcText(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::array<char, sizeof "2026-11-23T16:50:40Z"> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&seconds));
    return text.data();
}

LoggedChange::LoggedChange(Application& application)
    : app_(application), before_(application.state), operation_(application) {
    beginHistory();
    if (before_.PlayoffMode && !app_.log().playoffs(app_.files()))
        append(PlayoffsBegun());
}

LoggedChange::~LoggedChange() {
    if (!committed_)
        app_.state = before_;
}

void LoggedChange::beginHistory() {
    const std::string time = utcText(app_.platform().now());
    try {
        app_.log().begin(app_.files(), time);
    } catch (const DamagedHistory& error) {
        const std::string question =
            std::string(error.what()) +
            "\nThe history of the league cannot go on. Begin a new one from the books as "
            "they are now? The old one is kept in the same folder.";
        if (app_.platform().ask({question, Buttons::YesNo, "History"}) != Answer::Yes)
            throw;
        app_.log().setAside(app_.files(), time);
        app_.log().begin(app_.files(), time);
    }
}

void LoggedChange::append(LoggedOperation operation) {
    const bool turns =
        std::holds_alternative<PlayoffsBegun>(operation) || std::holds_alternative<GoneToPlayoffs>(operation);
    app_.log().append(app_.files(), {.time = utcText(app_.platform().now()),
                                     .starts = !app_.state.Logged,
                                     .playoffs = turns || app_.state.PlayoffMode,
                                     .operation = std::move(operation)});
    app_.state.Logged = true;
}

void LoggedChange::commit(LoggedOperation operation, bool seasonEnds) {
    append(std::move(operation));
    if (seasonEnds)
        append(PlayoffsBegun());
    operation_.commit();
    committed_ = true;
}

} // namespace iceline
