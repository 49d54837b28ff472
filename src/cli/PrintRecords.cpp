#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "records/AllTimeRecords.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

TextTable recordTable(const RecordSection& section) {
    TextTable table({{padded(std::string(section.caption), 24, Align::Left), Align::Left},
                     {"", Align::Left},
                     {"", Align::Left},
                     {""}});
    for (const ShownRecord& record : section.records)
        table.addRow({std::string(record.caption), std::string(record.team ? TeamAbbr[*record.team] : ""),
                      record.name, record.value});
    return table;
}

} // namespace

void printAllTimeRecords(const AllTimeRecords& window, std::ostream& out) {
    const char* separator = "";
    for (const RecordSection& section : recordSections(window.content())) {
        out << separator << recordTable(section);
        separator = "\n";
    }
}

} // namespace iceline::cli
