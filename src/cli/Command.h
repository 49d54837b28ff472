#pragma once

#include "cli/Session.h"
#include "shell/StopSignals.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace iceline::cli {

/// Whether a command changes the league, looks at it alone, or does without it or its start-up. The session
/// is started before the first two.
enum class Works { OnLeague, Looking, Alone };

/// What the words of a call have chosen.
struct Call {
    std::function<Status(Session&)> action;
    Works works = Works::OnLeague;
};

struct NoArguments {};

/// A command has ended early and in good order, because this signal asked the program to end.
struct Stopped {
    int signal;
};

/// Carries out what a signal is not to cut short: a run ends after the item in hand. Throws Stopped at the
/// end when there was a signal.
template <class Action>
Status uninterrupted(Action action) {
    const StopSignals signals;
    const Status status = action();
    if (StopSignals::received() != 0)
        throw Stopped{StopSignals::received()};
    return status;
}

/// Adds a command to the program, or to a command that groups others. The words of a call fill `Arguments`,
/// whose options the caller adds to what is returned; `action` then takes them, and works as `worksWith` says
/// of them.
template <class Arguments>
std::pair<CLI::App*, std::shared_ptr<Arguments>>
addCommand(CLI::App& parent, Call& call, const std::string& name, const std::string& description,
           Status (*action)(Session&, const Arguments&),
           std::type_identity_t<std::function<Works(const Arguments&)>> worksWith) {
    CLI::App* command = parent.add_subcommand(name, description)->group("Commands");
    auto arguments = std::make_shared<Arguments>();
    command->callback([&call, arguments, action, worksWith] {
        call.works = worksWith(*arguments);
        call.action = [arguments, action](Session& session) { return action(session, *arguments); };
    });
    return {command, arguments};
}

/// The same for a command that always works in one way.
template <class Arguments>
std::pair<CLI::App*, std::shared_ptr<Arguments>>
addCommand(CLI::App& parent, Call& call, const std::string& name, const std::string& description,
           Status (*action)(Session&, const Arguments&), Works works = Works::OnLeague) {
    return addCommand<Arguments>(parent, call, name, description, action,
                                 [works](const Arguments&) { return works; });
}

/// Adds an argument that must be given, by its place.
template <class Value>
void addArgument(CLI::App& command, const std::string& name, Value& value, const std::string& description) {
    command.add_option(name, value, description)->required()->type_name("");
}

/// The check of an option that takes a whole number, `least` or more.
template <class Number>
CLI::Validator wholeNumber(Number least) {
    const auto check = [least](const std::string& text) -> std::string {
        Number number{};
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error == std::errc() && end == text.data() + text.size() && number >= least)
            return "";
        return "must be a whole number from " + std::to_string(least) + " to " +
               std::to_string(std::numeric_limits<Number>::max()) + ", not \"" + text + "\"";
    };
    return {check, ""};
}

/// The commands by topic.
void addGameCommands(CLI::App& program, Call& call);
void addLeagueCommands(CLI::App& program, Call& call);
void addSeasonCommands(CLI::App& program, Call& call);
void addHistoryCommands(CLI::App& program, Call& call);
void addSampleGamesCommand(CLI::App& program, Call& call);
void addWindowCommands(CLI::App& program, Call& call);
void addCoachCommands(CLI::App& program, Call& call);
void addRecoverCommand(CLI::App& program, Call& call);
void addPreviewCommand(CLI::App& program, Call& call);
void addWatchCommand(CLI::App& program, Call& call);
void addScriptCommand(CLI::App& program, Call& call);
void addHelpCommand(CLI::App& program, Call& call);

/// Every command that a line of a script can hold: all but `script` itself, and `preview` and `watch`, which
/// go on until they are stopped.
void addScriptableCommands(CLI::App& program, Call& call);

/// Parses the words of a call. The call has no action when the words asked for help or the version, which is
/// then printed. Throws UsageError.
void parseWords(CLI::App& program, std::vector<std::string> words, Console& console);

} // namespace iceline::cli
