#pragma once

#include "cli/TextTable.h"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace iceline::cli {

/// What a command prints of a window: texts and tables, one after the other. For the eye they are lines, the
/// heads of tables bold where there are colours. For another program they are an array of JSON: a table is an
/// object, and of a text each line that is not blank is a string, without the blanks around it.
class Printout {
public:
    enum class Format { Text, Colours, Json };

    explicit Printout(Format format) : format_(format) {}

    Printout& operator<<(std::string_view text);
    Printout& operator<<(const TextTable& table);

    /// Tables beside each other.
    void sideBySide(const TextTable& left, const TextTable& right);

    /// A text that is drawn for the eye, and the table of what it shows.
    void drawing(std::string_view text, const TextTable& content);

    /// All of it.
    std::string result() const;

private:
    void addLines(const std::vector<std::string>& lines, bool hasHeads);
    void addObject(const TextTable& table);
    void addStrings();

    Format format_;
    std::string text_; ///< for JSON the texts since the last table
    nlohmann::ordered_json parts_ = nlohmann::ordered_json::array();
};

} // namespace iceline::cli
