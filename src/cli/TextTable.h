#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace iceline::cli {

/// A table of text for the terminal: a line of column heads and rows under it, columns as wide as their
/// widest cell, two blanks between them.
class TextTable {
public:
    enum class Align { Left, Right };

    struct Column {
        std::string head;
        Align align = Align::Right;
    };

    explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

    /// Cells beyond the columns are left out, missing ones are empty.
    void addRow(std::vector<std::string> cells);

    /// The table as lines without line ends. Without any head there is no line of heads.
    std::vector<std::string> lines() const;

    friend std::ostream& operator<<(std::ostream& out, const TextTable& table);

private:
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

/// Puts lines beside each other, the right ones `gap` blanks after the longest on the left.
std::vector<std::string> sideBySide(std::vector<std::string> left, const std::vector<std::string>& right,
                                    std::size_t gap);

/// Columns that a text takes on the terminal: the characters of its UTF-8.
std::size_t displayWidth(const std::string& text);

/// The text with blanks before or after it up to `width` columns.
std::string padded(const std::string& text, std::size_t width, TextTable::Align align);

} // namespace iceline::cli
