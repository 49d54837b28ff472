#pragma once

#include "shell/Window.h"
#include "standings/PointsStandings.h"
#include "standings/SplitStandings.h"

namespace iceline {

/// The standings of the regular season in four views: divisions, conferences, home and away, and each
/// conference against either conference.
///
/// Every update reads the teams' records, once each, and fills its view. While ShowWindows is False it writes
/// its page, too; the page of the versus view is written by the window's load alone.
class Standings : public Window {
public:
    using Window::Window;

    /// The application's standings, loaded.
    static Standings& in(Application& app);

    /// What the window shows.
    struct Content {
        std::array<DivisionRows, Divisions.size()> divisions;       ///< by Division
        std::array<ConferenceRows, Conferences.size()> conferences; ///< by Conference
        HomeAwayStandings homeAway;
        std::array<VersusRows, Conferences.size()> versus; ///< by Conference
        /// Against whom each conference's versus rows are ranked: the label that is red.
        std::array<Conference, Conferences.size()> versusRankedBy{Conference::Wales, Conference::Campbell};
    };

    void Form_Load() override;

    /// Renews StandingsTable and the order of the divisions, then the conferences.
    void DivisionStandingsUpdate();

    /// Renews the seeds, then works out the clinch marks; for DivisionStandingsUpdate, which has renewed what
    /// this builds on. The page bears the marks of before.
    void ConferenceStandingsUpdate();

    /// Shows the marks as they are now.
    void ClinchMarksUpdate();

    void HomeAwayStandingsUpdate();

    /// Renews what the four clicks rank, and shows nothing.
    void vsConfLoad();

    /// Ranks a conference (the first letter, E for Wales) by its record against a conference (the last).
    void EvE_Click();
    void EvW_Click();
    void WvW_Click();
    void WvE_Click();

    const Content& content() const { return content_; }

protected:
    void readAgain() override;

private:
    bool writesPages() const;
    void rank(Conference conference, Conference opponents);

    Content content_;
    std::array<VersusRows, Conferences.size()> versus_; ///< by Conference, in the order of the team table
};

} // namespace iceline
