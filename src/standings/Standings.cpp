#include "standings/Standings.h"

#include "page/PageFrame.h"
#include "shell/Application.h"
#include "standings/ClinchMarks.h"
#include "standings/StandingsTable.h"

namespace iceline {

namespace {

const VersusTable& versusTable(const ApplicationState& state, Conference conference) {
    return conference == Conference::Wales ? state.WalesVersus : state.CampbellVersus;
}

template <class Tables>
void showMarks(Tables& tables, const ApplicationState& state) {
    for (auto& rows : tables)
        for (StandingsRow& row : rows)
            row.mark = state.ClinchMark[row.team];
}

} // namespace

Standings& Standings::in(Application& app) {
    return static_cast<Standings&>(app.windows().use(WindowId::Standings));
}

bool Standings::writesPages() const {
    return !app_.state.ShowWindows;
}

void Standings::Form_Load() {
    DivisionStandingsUpdate();
    HomeAwayStandingsUpdate();
    vsConfLoad();
    if (!writesPages()) {
        EvE_Click();
        WvW_Click();
        return;
    }
    EvW_Click();
    EvE_Click();
    WvE_Click();
    WvW_Click();
    const auto& [wales, campbell] = content_.versus;
    writePage(app_.files(), paths::page("vsConfStandings.htm"),
              versusStandingsPage({{{wales, versusRows(app_.state.WalesVersus, EvWOrder)},
                                    {campbell, versusRows(app_.state.CampbellVersus, WvEOrder)}}}));
}

void Standings::DivisionStandingsUpdate() {
    app_.state.StandingsTable = readStandingsTable(app_.files());
    orderDivisions(app_.state);
    content_.divisions = divisionRows(app_.state);
    if (writesPages())
        writePage(app_.files(), paths::page("DivisionStandings.htm"),
                  divisionStandingsPage(content_.divisions));
    ConferenceStandingsUpdate();
}

void Standings::ConferenceStandingsUpdate() {
    seedConferences(app_.state);
    content_.conferences = conferenceRows(app_.state);
    if (writesPages())
        writePage(app_.files(), paths::page("ConferenceStandings.htm"),
                  conferenceStandingsPage(content_.conferences));
    markClinched(app_.state);
    ClinchMarksUpdate();
}

void Standings::ClinchMarksUpdate() {
    showMarks(content_.divisions, app_.state);
    showMarks(content_.conferences, app_.state);
    changed();
}

void Standings::HomeAwayStandingsUpdate() {
    content_.homeAway = readHomeAwayStandings(app_.files(), app_.state);
    if (writesPages())
        writePage(app_.files(), paths::page("HomeAwayStandings.htm"),
                  homeAwayStandingsPage(content_.homeAway));
    changed();
}

void Standings::vsConfLoad() {
    readVersusTables(app_.files(), app_.state);
}

void Standings::EvE_Click() {
    rank(Conference::Wales, Conference::Wales);
}

void Standings::EvW_Click() {
    const VersusOrder order = rank(Conference::Wales, Conference::Campbell);
    if (writesPages())
        EvWOrder = order;
}

void Standings::WvW_Click() {
    rank(Conference::Campbell, Conference::Campbell);
}

void Standings::WvE_Click() {
    const VersusOrder order = rank(Conference::Campbell, Conference::Wales);
    if (writesPages())
        WvEOrder = order;
}

VersusOrder Standings::rank(Conference conference, Conference opponents) {
    const VersusTable& table = versusTable(app_.state, conference);
    const auto index = static_cast<std::size_t>(conference);
    VersusOrder order = versusOrder(table, opponents);
    content_.versus[index] = versusRows(table, order);
    content_.versusRankedBy[index] = opponents;
    changed();
    return order;
}

} // namespace iceline
