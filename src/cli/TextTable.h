#pragma once

#include <nlohmann/json_fwd.hpp>
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
        std::string name = head; ///< in JSON
    };

    /// The title is for JSON alone: in the text it is one of the heads, or above the table.
    explicit TextTable(std::vector<Column> columns, std::string title = "")
        : columns_(std::move(columns)), title_(std::move(title)) {}

    /// Cells beyond the columns are left out, missing ones are empty.
    void addRow(std::vector<std::string> cells);

    bool hasHeads() const;

    /// The table as lines without line ends, the first with the heads if it has any.
    std::vector<std::string> lines() const;

    /// The title, if there is one, and the rows: an object each, with the cells by the names of their
    /// columns. What is a number in a column of figures is one there, too.
    nlohmann::ordered_json json() const;

    friend std::ostream& operator<<(std::ostream& out, const TextTable& table);

private:
    std::vector<Column> columns_;
    std::string title_;
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
