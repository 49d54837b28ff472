#pragma once

#include "files/Files.h"
#include "league/TeamTable.h"
#include "shell/Window.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// The season length that was typed: the whole number nearest to it, a tie to the even one; none when it is
/// no number from -1 to 32767.
std::optional<int> seasonLengthOf(const std::string& typed);

/// The window for what is not a game: the coaches, the length of the season, the move to the play-offs, the
/// next season, the clearing of statistics, and copies of the league.
class Options : public Window {
public:
    using Window::Window;

    static constexpr int NotChosen = -1;

    /// What the window shows.
    struct Content {
        std::vector<std::string> coaches; ///< entries of Combo1 and lines of Text3
        bool Command1Visible = false;     ///< the input row is open for a new coach
        bool Command2Visible = false;     ///< the input row is open for a new name
        std::string CurrentSeasonLength;

        /// NewC, Label3 and Label4 are visible when one of the two buttons is.
        bool inputRowVisible() const { return Command1Visible || Command2Visible; }
    };

    void Form_Load() override;

    void NewCoach_Click();
    void Command1_Click(); ///< "Create"
    void EditCoach_Click();
    void Command2_Click(); ///< "Rename"
    void DeleteCoach_Click();
    void CoachTeam_Click(); ///< "Clear Coach's Stats"
    void EnterSeasonLength_Click();
    void GoToPlayoffs_Click();
    void ClearTeamSelect_Click();
    void Command8_Click(); ///< "Clear Stats"

    /// "New Season": the one that is over is kept under the name in SeasonName. False when that is refused.
    bool NewSeason_Click();
    void BackUp_Click();

    const Content& content() const { return content_; }

    /// The coach chosen in Combo1, "" for none.
    std::string chosenCoach() const;

    std::string NewC;                ///< text of the name input
    int Combo1 = NotChosen;          ///< position in the coach list
    std::string SeasonLength;        ///< text of the season length input
    std::string SeasonName;          ///< text of the input for the name of a season that is over
    int ClearTeamSelect = NotChosen; ///< position in the team list: 0 to 23 a team, 24 "ALL"

private:
    bool isCoachChosen();
    bool acceptsNewName(const std::string& former = "");
    void turnRenamingFor(const std::string& coach);
    template <class Kind>
    void changeCoaches(const Kind& operation);
    void clearOneTeam(TeamIndex team);
    void clearWholeLeague();
    template <class Kind>
    void clearAll(const Kind& operation);
    void afterClearing();

    Content content_;
};

} // namespace iceline
