#pragma once

#include "playoffs/Bracket.h"
#include "shell/Window.h"

#include <string>

namespace iceline {

/// The bracket of the play-offs: as it would be if the season ended now, and once the play-offs are on, as it
/// is.
class Playoffs : public Window {
public:
    using Window::Window;

    /// What the window shows. BlankTeam is a team that is not yet known.
    struct Content {
        PlayoffSeriesTable series;
        bool PlayoffMode = false; ///< the play-offs are on

        TeamIndex team(SeriesPlace place) const { return teamAt(series, place); }

        /// A team's wins in a series; empty until the play-offs are on and both teams are known.
        std::string wins(SeriesPlace place) const;

        /// BlankTeam while a series is not decided.
        TeamIndex winner(SeriesIndex number) const { return winnerOf(series[number]); }
        TeamIndex champion() const { return winner(FinalSeries); }
    };

    /// Works out the state of the season, reads `Playoff Records.txt` and runs PlayoffTreeUpdate.
    void Form_Load() override;

    /// Fills the window and writes `PlayoffTree.htm`, whatever ShowWindows says.
    void PlayoffTreeUpdate();

    const Content& content() const { return content_; }

protected:
    void readAgain() override;

private:
    void showBracket();

    Content content_;
};

} // namespace iceline
