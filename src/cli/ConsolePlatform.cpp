#include "cli/ConsolePlatform.h"

#include "shell/StopSignals.h"

#include <chrono>
#include <utility>

namespace iceline::cli {

namespace {

constexpr int BarWidth = 30;
constexpr std::size_t LineWidth = 79;

std::string progressLine(const Progress& progress) {
    std::string line = progress.title + " ";
    if (progress.total > 0) {
        const auto filled = static_cast<std::size_t>(BarWidth * progress.done / progress.total);
        line += "[" + std::string(filled, '#') + std::string(std::size_t{BarWidth} - filled, '.') + "] ";
        line += std::to_string(progress.done) + "/" + std::to_string(progress.total) + " ";
    }
    line += progress.item;
    line.resize(LineWidth, ' ');
    return line;
}

std::uint64_t clockSeed() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

} // namespace

ConsolePlatform::ConsolePlatform(Console& console) : console_(console), generator_(clockSeed()) {}

Answer ConsolePlatform::ask(const Message& message) {
    if (!isQuiet || message.buttons != Buttons::Ok)
        console_.out << message.text << '\n';
    switch (message.buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::YesNo:
        return message.isWarning ? Answer::No : Answer::Yes;
    case Buttons::OkCancel:
        break;
    }
    ++okCancelAsked;
    if (respondent == Respondent::User)
        return askUser();
    return respondent == Respondent::AlwaysOk ? Answer::Ok : Answer::Cancel;
}

Answer ConsolePlatform::askUser() {
    if (!console_.inIsTerminal)
        return Answer::Cancel;
    console_.out << "OK or Cancel? [o/C] " << std::flush;
    std::string answer;
    std::getline(console_.in, answer);
    return answer.starts_with('o') || answer.starts_with('O') ? Answer::Ok : Answer::Cancel;
}

std::optional<std::string> ConsolePlatform::chooseFile(const std::string&, const std::vector<FileFilter>&) {
    return std::exchange(choice, std::nullopt);
}

std::optional<std::string> ConsolePlatform::chooseFolder(const std::string&) {
    return std::exchange(choice, std::nullopt);
}

double ConsolePlatform::random() {
    return std::uniform_real_distribution<double>(0, 1)(generator_);
}

bool ConsolePlatform::showProgress(const Progress& progress) {
    if (console_.errIsTerminal)
        console_.err << '\r' << progressLine(progress) << std::flush;
    return StopSignals::received() == 0;
}

void ConsolePlatform::endProgress() {
    if (console_.errIsTerminal)
        console_.err << '\r' << std::string(LineWidth, ' ') << '\r' << std::flush;
}

} // namespace iceline::cli
