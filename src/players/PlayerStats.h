#pragma once

#include "players/PlayerTable.h"
#include "shell/Window.h"

#include <vector>

namespace iceline {

/// A team's players in a part of the year: skaters, goalies, and the team's leader in ten categories. Loaded
/// while pages are written, it writes the fragments of all teams in every order.
class PlayerStats : public Window {
public:
    PlayerStats(Application& application, PartOfYear part) : Window(application), part_(part) {}

    static constexpr int NotChosen = -1;

    struct Content {
        std::vector<PlayerTableRow> skaters; ///< in the order shown
        std::vector<PlayerTableRow> goalies;
        std::vector<CategoryLeader> leaders; ///< empty while no team is chosen
    };

    void Form_Load() override;
    void PlayersTeamSelect_Click();
    void SkaterUpdate();
    void GoalieUpdate();
    void PlayerStatsN_Click(int Index);
    void GPlayerStatsN_Click(int Index);

    const Content& content() const { return content_; }
    PartOfYear partOfYear() const { return part_; }

    int PlayersTeamSelect = NotChosen; ///< position in the team list

    /// The columns that sort at first, the power ranking, and those that mean the roster's order.
    static constexpr int RankingColumn = skaterColumn("Pow.Rank");
    static constexpr int SkaterNameColumn = int{SkaterColumns.size()};
    static constexpr int GoalieNameColumn = int{GoalieColumns.size()};

    /// Sort state: a column of the table, or its name column.
    int SkaterSortColumn = RankingColumn;
    int TeamGoalieSortColumn = RankingColumn;
    bool SkaterSortAscending = false;
    bool TeamGoalieSortAscending = false;

protected:
    void readAgain() override;

private:
    PartOfYear part_;
    TeamPlayers players_;
    Content content_;
};

} // namespace iceline
