#pragma once

#include "league/TeamTable.h"
#include "shell/Window.h"
#include "store/LeaguePaths.h"
#include "teams/TeamView.h"

#include <optional>
#include <string>

namespace iceline {

/// All that the league knows of one team in a part of the year. Loaded while pages are written, it writes the
/// pages of all teams.
class TeamStats : public Window {
public:
    TeamStats(Application& application, PartOfYear part) : Window(application), part_(part) {}

    void Form_Load() override;

    /// The team at position TeamSelect has been chosen: reads its files again and shows them.
    void TeamSelect_Click();

    /// The team that is shown; none before one is chosen.
    const std::optional<TeamView>& content() const { return content_; }

    int TeamSelect = -1; ///< position in the team list, a TeamIndex; -1 while it shows its prompt

protected:
    void readAgain() override;

private:
    PartOfYear part_;
    std::optional<TeamView> content_;
};

/// The text of a team's page.
std::string teamPage(TeamIndex team, PartOfYear part, const TeamView& view);

} // namespace iceline
