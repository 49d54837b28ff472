#include "standings/Standings.h"

#include "shell/Application.h"
#include "standings/ClinchMarks.h"
#include "standings/StandingsPages.h"

namespace iceline {

namespace {

template <class Tables>
void showMarks(Tables& tables, const ApplicationState& state) {
    for (auto& rows : tables)
        for (PointsRow& row : rows)
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
    EvE_Click();
    WvW_Click();
    if (writesPages())
        writeVersusStandings(app_.files(), versus_);
}

void Standings::DivisionStandingsUpdate() {
    app_.state.StandingsTable = readStandingsTable(app_.files());
    orderDivisions(app_.state);
    content_.divisions = divisionRows(app_.state);
    if (writesPages())
        writeDivisionStandings(app_.files(), content_.divisions);
    ConferenceStandingsUpdate();
}

void Standings::ConferenceStandingsUpdate() {
    seedConferences(app_.state);
    content_.conferences = conferenceRows(app_.state);
    if (writesPages())
        writeConferenceStandings(app_.files(), content_.conferences);
    markClinched(app_.state);
    ClinchMarksUpdate();
}

void Standings::ClinchMarksUpdate() {
    showMarks(content_.divisions, app_.state);
    showMarks(content_.conferences, app_.state);
    changed();
}

void Standings::HomeAwayStandingsUpdate() {
    content_.homeAway = readHomeAwayStandings(app_.files());
    if (writesPages())
        writeHomeAwayStandings(app_.files(), content_.homeAway);
    changed();
}

void Standings::vsConfLoad() {
    versus_ = {readVersusRows(app_.files(), Conference::Wales),
               readVersusRows(app_.files(), Conference::Campbell)};
}

void Standings::readAgain() {
    DivisionStandingsUpdate();
    HomeAwayStandingsUpdate();
    vsConfLoad();
    for (const Conference conference : {Conference::Wales, Conference::Campbell})
        rank(conference, content_.versusRankedBy[static_cast<std::size_t>(conference)]);
}

void Standings::EvE_Click() {
    rank(Conference::Wales, Conference::Wales);
}

void Standings::EvW_Click() {
    rank(Conference::Wales, Conference::Campbell);
}

void Standings::WvW_Click() {
    rank(Conference::Campbell, Conference::Campbell);
}

void Standings::WvE_Click() {
    rank(Conference::Campbell, Conference::Wales);
}

void Standings::rank(Conference conference, Conference opponents) {
    const auto index = static_cast<std::size_t>(conference);
    content_.versus[index] = ranked(versus_[index], opponents);
    content_.versusRankedBy[index] = opponents;
    changed();
}

} // namespace iceline
