#include "cli/Printout.h"

#include <sstream>

namespace iceline::cli {

namespace {

constexpr std::size_t GapBesideTables = 4;
constexpr std::string_view Bold = "\x1b[1m";
constexpr std::string_view Plain = "\x1b[0m";

std::string withoutBlanksAround(const std::string& line) {
    const std::size_t begin = line.find_first_not_of(" \r");
    return begin == line.npos ? "" : line.substr(begin, line.find_last_not_of(" \r") + 1 - begin);
}

} // namespace

Printout& Printout::operator<<(std::string_view text) {
    text_ += text;
    return *this;
}

Printout& Printout::operator<<(const TextTable& table) {
    if (format_ == Format::Json)
        addObject(table);
    else
        addLines(table.lines(), table.hasHeads());
    return *this;
}

void Printout::sideBySide(const TextTable& left, const TextTable& right) {
    if (format_ == Format::Json)
        *this << left << right;
    else
        addLines(cli::sideBySide(left.lines(), right.lines(), GapBesideTables), left.hasHeads());
}

void Printout::drawing(std::string_view text, const TextTable& content) {
    if (format_ == Format::Json)
        addObject(content);
    else
        text_ += text;
}

void Printout::addLines(const std::vector<std::string>& lines, bool hasHeads) {
    const bool bold = hasHeads && format_ == Format::Colours;
    for (const std::string& line : lines) {
        if (bold && &line == &lines.front())
            text_.append(Bold).append(line).append(Plain);
        else
            text_ += line;
        text_ += '\n';
    }
}

void Printout::addObject(const TextTable& table) {
    addStrings();
    parts_.push_back(table.json());
}

void Printout::addStrings() {
    std::istringstream lines(std::exchange(text_, {}));
    for (std::string line; std::getline(lines, line);)
        if (const std::string content = withoutBlanksAround(line); !content.empty())
            parts_.push_back(content);
}

std::string Printout::result() const {
    if (format_ != Format::Json)
        return text_;
    Printout whole(*this);
    whole.addStrings();
    return whole.parts_.dump(1) + '\n';
}

} // namespace iceline::cli
