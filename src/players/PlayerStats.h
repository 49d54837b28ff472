#pragma once

#include "league/TeamTable.h"
#include "players/PlayerTable.h"
#include "shell/Window.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <string>
#include <vector>

namespace iceline {

/// A team's players in a part of the year: skaters, goalies, and the team's leader in ten categories. Loaded
/// while pages are written, it writes the fragments of all teams in every order.
class PlayerStats : public Window {
public:
    PlayerStats(Application& application, PartOfYear part) : Window(application), part_(part) {}

    static constexpr int NotChosen = -1;

    /// A team's leader in a category.
    struct Leader {
        std::string_view heading;
        std::string_view control; ///< label of the figure; the name's ends in "Name"
        std::string Name;
        std::string value;
    };

    struct Content {
        std::vector<PlayerTableRow> skaters; ///< in the order shown
        std::vector<PlayerTableRow> goalies;
        std::vector<Leader> leaders; ///< empty while no team is chosen
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

    /// Sort state: the column from 0 to 13, 13 being the roster's order.
    int SkaterSortColumn = 2;
    int TeamGoalieSortColumn = 2;
    bool SkaterSortAscending = false;
    bool TeamGoalieSortAscending = false;

private:
    void writeFragments();
    void writeOrders(const std::string& stem, const std::vector<std::string>& skaters,
                     const std::vector<std::string>& goalies);

    PartOfYear part_;
    PlayerTable skaterTable_;
    PlayerTable goalieTable_;
    Content content_;
};

} // namespace iceline
