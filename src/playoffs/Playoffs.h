#pragma once

#include "playoffs/Bracket.h"
#include "shell/Window.h"

#include <string>

namespace iceline {

/// The bracket of the play-offs: as it would stand if the season ended now, and once the play-offs are on, as
/// it stands.
class Playoffs : public Window {
public:
    using Window::Window;

    /// What the window shows. East is the Wales Conference, West the Campbell Conference; BlankTeam is a team
    /// that is not yet known, and a number of wins that is not shown is empty.
    struct Content {
        std::array<TeamIndex, 8> EastFirstRound = blankTeams<8>(); ///< by place among the seeds
        std::array<TeamIndex, 8> WestFirstRound = blankTeams<8>();
        std::array<TeamIndex, 7> T1 = blankTeams<7>(); ///< first teams of series 8 to 14
        std::array<TeamIndex, 7> T2 = blankTeams<7>(); ///< second teams
        std::array<std::string, SeriesCount> W1;       ///< wins of the series' first teams
        std::array<std::string, SeriesCount> W2;
        std::array<TeamIndex, SeriesCount> winner =
            blankTeams<SeriesCount>();    ///< of each series that is decided
        TeamIndex StanleyCup = BlankTeam; ///< the champion
        bool PlayoffMode = false;         ///< the play-offs are on

        TeamIndex team(Conference conference, const BracketSlot& slot) const;
        const std::string& wins(const BracketSlot& slot) const;
    };

    /// Works out the state of the season, reads `Playoff Records.txt` and runs PlayoffTreeUpdate.
    void Form_Load() override;

    /// Fills the window and writes `PlayoffTree.htm`, whatever ShowWindows says.
    void PlayoffTreeUpdate();

    const Content& content() const { return content_; }

private:
    void showSeries(int number);

    Content content_;
};

} // namespace iceline
