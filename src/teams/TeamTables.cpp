#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "teams/TeamView.h"

namespace iceline {

namespace {

/// A column of a table with one row: its head and its value.
struct Column {
    std::string head;
    std::string value;
};

std::string text(int value) {
    return std::to_string(value);
}

std::string text(double value) {
    return numberText(value);
}

template <class A, class B>
std::string pair(A first, B second) {
    return text(first) + " / " + text(second);
}

std::string triple(int wins, int losses, int ties) {
    return text(wins) + " - " + text(losses) + " - " + text(ties);
}

/// A table of one row. `titleSpan` is the number of columns that the title spans.
void addTable(PageText& page, const std::string& title, int titleSpan, const std::vector<Column>& columns) {
    page.add("<table border = 1>");
    if (!title.empty())
        page.add("<tr><th colspan = " + text(titleSpan) + ">" + title + "</th></tr>");
    page.add("<tr>");
    for (const Column& column : columns)
        page.add("<th><b>" + column.head + "</b></th>");
    page.line("</tr>");
    std::string cells;
    for (const Column& column : columns)
        cells += (cells.empty() ? "<tr><td><center>" : "</center></td><td><center>") + column.value;
    page.line(cells + "</center></td></tr>");
}

std::vector<Column> recordColumns(const TeamView& view, CrowdColumns crowd) {
    const TeamRecord& r = view.record;
    std::vector<Column> columns{
        {"W - L - T", triple(r.Wins, r.Losses, r.Ties)},
        {"Pts.", text(r.Points)},
        {"Win%", text(r.WinPercent)},
        {"GP", text(r.GP)},
        {"GF", text(r.GF)},
        {"GA", text(r.GA)},
        {"GFA", text(r.GFA)},
        {"GAA", text(r.GAA)},
        {"Diff", text(r.Diff)},
        {"Pow.Rank", text(r.PowerRanking)},
        {"Streak", view.streak.StreakLetter + text(view.streak.StreakCount)},
        {"Last 10", triple(view.lastTen.wins, view.lastTen.losses, view.lastTen.ties)},
    };
    if (crowd == CrowdColumns::Yes) {
        columns.push_back({"Arena dB Rec.", text(r.ArenaMeter)});
        columns.push_back({"League dB Rec.", text(view.LeagueMeter)});
    }
    return columns;
}

std::vector<Column> overtimeColumns(const TeamRecord& r) {
    return {{"W - L - T", triple(r.OTW, r.OTL, r.OTT)}, {"Win%", text(r.OTWPct)}, {"GP", text(r.OTGP)}};
}

std::vector<Column> homeColumns(const TeamRecord& r) {
    return {{"W - L - T", triple(r.HW, r.HL, r.HT)},
            {"Win%", text(r.HWinPercent)},
            {"GP", text(r.HGP)},
            {"GF", text(r.HGF)},
            {"GA", text(r.HGA)},
            {"GFA", text(r.HGFA)},
            {"GAA", text(r.HGAA)},
            {"Diff", text(r.HomeDiff)},
            {"Pow.Rank", text(r.HomePowerRanking)}};
}

std::vector<Column> awayColumns(const TeamRecord& r) {
    return {{"W - L - T", triple(r.AW, r.AL, r.AT)},
            {"Win%", text(r.AWinPercent)},
            {"GP", text(r.AGP)},
            {"GF", text(r.AGF)},
            {"GA", text(r.AGA)},
            {"GFA", text(r.AGFA)},
            {"GAA", text(r.AGAA)},
            {"Diff", text(r.AwayDiff)},
            {"Pow.Rank", text(r.AwayPowerRanking)}};
}

std::vector<Column> totalColumns(const TeamRecord& r) {
    return {{"SOG", text(r.SOG)},
            {"S%", text(r.SOGPct)},
            {"SOGA", text(r.SOGA)},
            {"PPG/PPA", pair(r.PPG, r.PPA)},
            {"PP%", text(r.PPPct)},
            {"Pen/PIM", pair(r.Pen, r.PIM)},
            {"PenA/PIMA", pair(r.PenA, r.PIMA)}};
}

std::vector<Column> furtherTotalColumns(const TeamRecord& r) {
    return {{"PKG/PKO", pair(r.PKG, r.PKO)}, {"PK%", text(r.PKPct)},
            {"FOW/FOT", pair(r.FOW, r.FOT)}, {"FOW%", text(r.FOWPct)},
            {"ByCks", text(r.ByCks)},        {"PsC/PsA", pair(r.PassComp, r.PassAtt)},
            {"PsAcc%", text(r.PassAcc)}};
}

std::vector<Column> averageColumns(const TeamRecord& r) {
    return {{"SOG", text(r.SOGPG)},
            {"SOGA", text(r.SOGAPG)},
            {"PPG/PPA", pair(r.PPGPG, r.PPAPG)},
            {"Pen/PIM", pair(r.PenPG, r.PIMPG)},
            {"PenA/PIMA", pair(r.PenAPG, r.PIMAPG)}};
}

std::vector<Column> furtherAverageColumns(const TeamRecord& r) {
    return {{"PKG/PKO", pair(r.PKGPG, r.PKOPG)},
            {"Att.Zone", r.AttZonePG},
            {"FOW/FOT", pair(r.FOWPG, r.FOTPG)},
            {"ByCks", text(r.ByCksPG)},
            {"PsC/PsA", pair(r.PassCompPG, r.PassAttPG)}};
}

} // namespace

std::string teamTables(const TeamView& view, CrowdColumns crowd) {
    const TeamRecord& record = view.record;
    PageText page;
    addTable(page, "", 0, recordColumns(view, crowd));
    page.line("</table>");
    addTable(page, "Overtime Stats", 3, overtimeColumns(record));
    page.line("</table>");
    addTable(page, "Home Stats", 9, homeColumns(record));
    page.line("</table>");
    addTable(page, "Away Stats", 9, awayColumns(record));
    page.line("</table><BR><BR>");
    addTable(page, "Season Totals", 21, totalColumns(record));
    page.line("</table>");
    addTable(page, "", 0, furtherTotalColumns(record));
    page.line("</table><BR>");
    addTable(page, "Season Averages", 21, averageColumns(record));
    page.line("</table>");
    addTable(page, "", 0, furtherAverageColumns(record));
    page.line("</table><BR><BR></font></center></body></html>");
    return page.text();
}

} // namespace iceline
