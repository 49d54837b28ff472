#include "cli/Script.h"

#include "cli/Command.h"
#include "files/FileError.h"
#include "shell/ErrorText.h"
#include "text/Text.h"

#include <algorithm>
#include <sstream>

namespace iceline::cli {

namespace {

constexpr std::string_view Blanks = " \t\r";

Status carryOutLine(const std::string& line, Session& session) {
    const auto words = wordsOf(line);
    if (!words)
        throw UsageError("a double quote is not closed");
    if (words->empty())
        return Status::Done;
    CLI::App program("", "");
    Call call;
    addScriptableCommands(program, call);
    parseWords(program, *words, session.console());
    if (!call.action)
        return Status::Done;
    return uninterrupted([&] { return call.action(session); });
}

/// Goes on after what is refused and after what is misused; an error ends it, since nobody knows what the
/// next commands would find.
Status carryOutLines(std::istream& lines, const std::string& name, Session& session) {
    Status worst = Status::Done;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string place = name + ", line " + std::to_string(number) + ": ";
        try {
            worst = std::max(worst, carryOutLine(textOfFile(line), session));
        } catch (const UsageError& error) {
            report(session.console(), place + error.what());
            worst = Status::Misused;
        } catch (const std::exception& error) {
            report(session.console(), place + errorText(error));
            return std::max(worst, Status::Refused);
        }
    }
    if (lines.bad())
        throw FileError::about(name, "cannot be read to its end");
    return worst;
}

Status runScript(Session& session, const std::string& file) {
    session.console().pager.clear(); // what the commands say stays in their order
    if (file == "-")
        return carryOutLines(session.console().in, "standard input", session);
    std::istringstream lines(session.app().files().read(absolutePath(file)));
    return carryOutLines(lines, file, session);
}

} // namespace

std::optional<std::vector<std::string>> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
        if (line.empty() || line.front() == '#')
            return words;
        std::string word;
        while (!line.empty() && Blanks.find(line.front()) == Blanks.npos) {
            if (line.front() != '"') {
                word += line.front();
                line.remove_prefix(1);
                continue;
            }
            const auto close = line.find('"', 1);
            if (close == line.npos)
                return std::nullopt;
            word += line.substr(1, close - 1);
            line.remove_prefix(close + 1);
        }
        words.push_back(word);
    }
}

void addScriptCommand(CLI::App& program, Call& call) {
    const auto [command, file] =
        addCommand<std::string>(program, call, "script", "Carry out many commands in one run", runScript);
    addArgument(*command, "FILE", *file, "one command a line; - reads standard input");
}

} // namespace iceline::cli
