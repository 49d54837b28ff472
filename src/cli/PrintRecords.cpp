#include "cli/WindowPrinters.h"
#include "records/AllTimeRecords.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

TextTable recordTable(const RecordSection& section) {
    const std::string caption(section.caption);
    TextTable table({{padded(caption, 24, Align::Left), Align::Left, "Record"},
                     {"", Align::Left, "Team"},
                     {"", Align::Left, "Name"},
                     {"", Align::Right, "Value"}},
                    caption);
    for (const ShownRecord& record : section.records)
        table.addRow({std::string(record.caption), std::string(record.team ? TeamAbbr[*record.team] : ""),
                      record.name, record.value});
    return table;
}

} // namespace

void printAllTimeRecords(const AllTimeRecords& window, Printout& out) {
    const char* separator = "";
    for (const RecordSection& section : recordSections(window.content())) {
        out << separator << recordTable(section);
        separator = "\n";
    }
}

} // namespace iceline::cli
