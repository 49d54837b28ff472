#include "cli/TextTable.h"

#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>

namespace iceline::cli {

namespace {

constexpr std::size_t Gap = 2;

void cutBlanksBehind(std::string& line) {
    line.erase(line.find_last_not_of(' ') + 1);
}

nlohmann::ordered_json cellValue(const std::string& cell, TextTable::Align align) {
    double number = 0;
    const char* end = cell.data() + cell.size();
    if (align == TextTable::Align::Left || std::from_chars(cell.data(), end, number).ptr != end ||
        cell.empty())
        return cell;
    if (cell.find('.') == cell.npos)
        return static_cast<std::int64_t>(number);
    return number;
}

} // namespace

std::size_t displayWidth(const std::string& text) {
    return characterCount(text);
}

std::string padded(const std::string& text, std::size_t width, TextTable::Align align) {
    const std::size_t used = displayWidth(text);
    const std::string blanks(width > used ? width - used : 0, ' ');
    return align == TextTable::Align::Left ? text + blanks : blanks + text;
}

void TextTable::addRow(std::vector<std::string> cells) {
    cells.resize(columns_.size());
    rows_.push_back(std::move(cells));
}

bool TextTable::hasHeads() const {
    return std::ranges::any_of(columns_, [](const Column& column) { return !column.head.empty(); });
}

std::vector<std::string> TextTable::lines() const {
    std::vector<std::vector<std::string>> rows = rows_;
    if (hasHeads())
        std::ranges::transform(columns_, std::back_inserter(*rows.emplace(rows.begin())), &Column::head);

    std::vector<std::string> lines(rows.size());
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        std::size_t width = 0;
        for (const auto& row : rows)
            width = std::max(width, displayWidth(row[column]));
        for (std::size_t i = 0; i < rows.size(); ++i)
            lines[i] += std::string(column == 0 ? 0 : Gap, ' ') +
                        padded(rows[i][column], width, columns_[column].align);
    }
    std::ranges::for_each(lines, cutBlanksBehind);
    return lines;
}

nlohmann::ordered_json TextTable::json() const {
    nlohmann::ordered_json table;
    if (!title_.empty())
        table["title"] = title_;
    nlohmann::ordered_json& rows = table["rows"] = nlohmann::ordered_json::array();
    for (const auto& cells : rows_) {
        nlohmann::ordered_json& row = rows.emplace_back();
        for (std::size_t column = 0; column < columns_.size(); ++column)
            row[columns_[column].name] = cellValue(cells[column], columns_[column].align);
    }
    return table;
}

std::ostream& operator<<(std::ostream& out, const TextTable& table) {
    for (const std::string& line : table.lines())
        out << line << '\n';
    return out;
}

std::vector<std::string> sideBySide(std::vector<std::string> left, const std::vector<std::string>& right,
                                    std::size_t gap) {
    std::size_t width = 0;
    for (const std::string& line : left)
        width = std::max(width, displayWidth(line));
    left.resize(std::max(left.size(), right.size()));
    for (std::size_t i = 0; i < right.size(); ++i)
        left[i] = padded(left[i], width + gap, TextTable::Align::Left) + right[i];
    return left;
}

} // namespace iceline::cli
