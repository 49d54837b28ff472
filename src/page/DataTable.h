#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace iceline {

class Files;

/// A table of the league's data for other programs, row by row, as JSON and as CSV (RFC 4180, with a line of
/// names). The JSON is an object of `columns`, the list of their names, and `rows`, a list of lists in the
/// same order, a line each. Texts are UTF-8: one that is not is taken for Windows-1252.
class DataTable {
public:
    DataTable(std::initializer_list<std::string_view> columns) {
        for (const std::string_view column : columns)
            addColumn(column);
    }

    /// Only before the first value.
    void addColumn(std::string_view name);

    DataTable& number(double value);
    DataTable& text(std::string_view value);
    DataTable& flag(bool value) { return value ? add("true", "true") : add("false", "false"); }
    DataTable& blank() { return add("null", ""); }
    DataTable& endRow();

    std::string json() const;
    const std::string& csv() const { return csv_; }

private:
    DataTable& add(std::string_view json, std::string_view csv);

    std::string columns_;
    std::string rows_;
    std::string csv_;
    bool startsRow_ = true;
};

/// Writes `data/<name>.json` and `data/<name>.csv` in the site. A file whose text is what it was is left
/// alone.
void writeData(Files& files, const std::string& name, const DataTable& table);

} // namespace iceline
