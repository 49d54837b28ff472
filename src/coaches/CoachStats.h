#pragma once

#include "leaders/LeaderLists.h"
#include "shell/Window.h"
#include "teams/TeamView.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// The coaches: the ranking of all of them, and the statistics of the one chosen, whose page every choice
/// writes. Loaded while pages are written, it writes the table of all coaches.
class CoachStats : public Window {
public:
    using Window::Window;

    static constexpr int NotChosen = -1;

    struct Content {
        std::vector<std::string> coaches; ///< entries of the coach list
        LeaderList ranking;               ///< coaches who have games, in the order of the sort state
        std::optional<TeamView> coach;    ///< the coach chosen
    };

    void Form_Load() override;
    void tmLeadersLoad();
    void tmLeadersUpdate();
    void tmLeadersCol_Click(int Index); ///< 0 is the head of the coaches themselves, column n is n + 1
    void TeamSelect_Click();

    const Content& content() const { return content_; }

    /// The name of the coach chosen, "" for none.
    std::string CoachName() const;

    int TeamSelect = NotChosen; ///< position in the coach list
    int CoachSortColumn = 1;    ///< -1 to 11; points when the window opens
    bool CoachSortAscending = false;

protected:
    /// The list of coaches stays as it was loaded; one who is no more has no figures.
    void readAgain() override;

private:
    void showRanking();
    LeaderSort sort() const { return {CoachSortColumn, CoachSortAscending}; }

    Content content_;
};

} // namespace iceline
