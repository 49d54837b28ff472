#include "cli/Commands.h"

#include "app/Version.h"
#include "cli/Command.h"
#include "shell/ErrorText.h"

#include <algorithm>

namespace iceline::cli {

namespace {

/// The exit status of a program that a signal has ended is this and the signal's number.
constexpr int StatusOfSignals = 128;

constexpr const char* Description = "Keeps the books of a hockey league whose games come from save states.";

std::string noCommand(const std::string& word) {
    return "there is no command '" + word + "'; 'iceline help' lists them";
}

std::string usageError(const CLI::App& program, const CLI::ParseError& error) {
    if (!program.get_subcommands().empty())
        return error.what();
    const std::vector<std::string> unknown = program.remaining();
    if (unknown.empty())
        return "a command is needed; 'iceline help' lists them";
    return noCommand(unknown.front());
}

/// Everything that can be typed after the program's name.
void addAll(CLI::App& program, Call& call, LeagueChoice& choice) {
    program.allow_windows_style_options(false); // "/league" is a path
    program.get_formatter()->label("SUBCOMMAND", "COMMAND");
    program.get_formatter()->label("Positionals", "Arguments");
    program.get_formatter()->label("REQUIRED", "");
    program.add_option("--league", choice.folder, "the league folder (default: the current folder)")
        ->type_name("DIR");
    program.add_flag("--yes", choice.yes, "answer questions with OK");
    program.set_version_flag("--version", "iceline " + versionText("CLI11 " CLI11_VERSION));
    addScriptableCommands(program, call);
    addRecoverCommand(program, call);
    addPreviewCommand(program, call);
    addWatchCommand(program, call);
    addScriptCommand(program, call);
}

Status printHelp(Session& session, const std::vector<std::string>& words) {
    CLI::App program(Description, "iceline");
    Call call;
    LeagueChoice choice;
    addAll(program, call, choice);
    const CLI::App* command = &program;
    std::string before;
    for (const std::string& word : words) {
        const auto known =
            command->get_subcommands([&word](const CLI::App* one) { return one->get_name() == word; });
        if (known.empty())
            throw UsageError(noCommand(word));
        before += (before.empty() ? "" : " ") + command->get_name();
        command = known.front();
    }
    session.out() << command->help(before);
    return Status::Done;
}

Status carryOut(const Call& call, Session& session) {
    if (!call.action)
        return Status::Done;
    if (call.works == Works::OnLeague && !session.start())
        return Status::Refused;
    if (call.works == Works::Looking && !session.startLooking())
        return Status::Refused;
    return call.action(session);
}

Status carryOut(const std::vector<std::string>& arguments, Console& console) {
    CLI::App program(Description, "iceline");
    Call call;
    LeagueChoice choice;
    addAll(program, call, choice);
    parseWords(program, arguments, console);
    Session session(console, choice);
    return carryOut(call, session);
}

} // namespace

void addHelpCommand(CLI::App& program, Call& call) {
    const auto [command, words] = addCommand<std::vector<std::string>>(
        program, call, "help", "Describe the program, or one of its commands", printHelp, Works::Alone);
    command->add_option("COMMAND", *words)->type_name("");
}

void addScriptableCommands(CLI::App& program, Call& call) {
    program.require_subcommand(1);
    addLeagueCommands(program, call);
    addGameCommands(program, call);
    addWindowCommands(program, call);
    addCoachCommands(program, call);
    addSeasonCommands(program, call);
    addHistoryCommands(program, call);
    addSampleGamesCommand(program, call);
    addHelpCommand(program, call);
}

void parseWords(CLI::App& program, std::vector<std::string> words, Console& console) {
    std::ranges::reverse(words);
    try {
        program.parse(std::move(words));
    } catch (const CLI::Success& success) {
        program.exit(success, console.out, console.err);
    } catch (const CLI::ParseError& error) {
        throw UsageError(usageError(program, error));
    }
}

int run(const std::vector<std::string>& arguments, Console console) {
    int status = static_cast<int>(Status::Done);
    try {
        status = static_cast<int>(carryOut(arguments, console));
    } catch (const Stopped& stopped) {
        status = StatusOfSignals + stopped.signal;
    } catch (const UsageError& error) {
        report(console, error.what());
        status = static_cast<int>(Status::Misused);
    } catch (const std::exception& error) {
        report(console, errorText(error));
        status = static_cast<int>(Status::Refused);
    }
    if (console.out.flush())
        return status;
    report(console, "standard output: cannot be written to its end");
    return std::max(status, static_cast<int>(Status::Refused));
}

} // namespace iceline::cli
