#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "records/AllTimeRecords.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

TextTable recordTable(const std::string& title, const std::vector<ShownRecord>& records) {
    TextTable table(
        {{padded(title, 24, Align::Left), Align::Left}, {"", Align::Left}, {"", Align::Left}, {""}});
    for (const ShownRecord& record : records)
        table.addRow({std::string(record.caption), std::string(record.team ? TeamAbbr[*record.team] : ""),
                      record.name, record.value});
    return table;
}

} // namespace

void printAllTimeRecords(const AllTimeRecords& window, std::ostream& out) {
    const AllTimeRecords::Content& content = window.content();
    out << recordTable("Player Records", shownPlayerRecords(content)) << '\n'
        << recordTable("Goalie Records", shownGoalieRecords(content)) << '\n'
        << recordTable("Team Records", shownTeamRecords(content)) << '\n'
        << recordTable("Coach Records", shownCoachRecords(content));
}

} // namespace iceline::cli
