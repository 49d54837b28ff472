#include "page/DataTable.h"

#include "files/Files.h"
#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "store/LeaguePaths.h"
#include "text/Text.h"

#include <fmt/core.h>
#include <nlohmann/json.hpp>

namespace iceline {

namespace {

std::string jsonText(const std::string& text) {
    return nlohmann::json(text).dump();
}

/// An item of a CSV line: in double quotes where it has to be.
std::string csvText(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted += '"';
}

} // namespace

void DataTable::addColumn(std::string_view name) {
    columns_ += (columns_.empty() ? "" : ", ") + jsonText(std::string(name));
    csv_.insert(csv_.empty() ? 0 : csv_.size() - 2, (csv_.empty() ? "" : ",") + csvText(name));
    if (!csv_.ends_with("\r\n"))
        csv_ += "\r\n";
}

DataTable& DataTable::number(double value) {
    const std::string item = numberText(value);
    return add(item, item);
}

DataTable& DataTable::text(std::string_view value) {
    const std::string text = textOfFile(std::string(value));
    return add(jsonText(text), csvText(text));
}

DataTable& DataTable::add(std::string_view json, std::string_view csv) {
    rows_ += !startsRow_ ? ", " : rows_.empty() ? "[" : ",\n[";
    csv_ += startsRow_ ? "" : ",";
    startsRow_ = false;
    rows_ += json;
    csv_ += csv;
    return *this;
}

DataTable& DataTable::endRow() {
    rows_ += ']';
    csv_ += "\r\n";
    startsRow_ = true;
    return *this;
}

std::string DataTable::json() const {
    return fmt::format("{{\"columns\": [{}],\n\"rows\": [\n{}\n]}}\n", columns_, rows_);
}

void writeData(Files& files, const std::string& name, const DataTable& table) {
    const std::string stem = paths::page("data/" + name);
    writePage(files, stem + ".json", table.json());
    writePage(files, stem + ".csv", table.csv());
}

} // namespace iceline
