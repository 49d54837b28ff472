#pragma once

#include "league/TeamTable.h"
#include "shell/Window.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// One player's picture, roster figures and statistics in a part of the year. It writes no page.
class PlayerProfiles : public Window {
public:
    PlayerProfiles(Application& application, PartOfYear part) : Window(application), part_(part) {}

    static constexpr int NotChosen = -1;

    /// A figure by the name of its control, in the text form that it has in the file.
    struct Figure {
        std::string_view name;
        std::string text;
    };

    struct Player {
        RosterRow row;
        std::string card; ///< path of his picture in the league folder
        std::vector<Figure> figures;
    };

    struct Content {
        std::vector<RosterRow> roster; ///< the chosen team's players, by position in the player list
        std::optional<Player> player;
    };

    void Form_Load() override {}
    void PlayersTeamSelect_Click();
    void PlayersNameSelect_Click();

    const Content& content() const { return content_; }
    PartOfYear partOfYear() const { return part_; }

    int PlayersTeamSelect = NotChosen; ///< position in the team list, a TeamIndex
    int PlayersNameSelect = NotChosen; ///< position in the player list, a roster row

protected:
    void readAgain() override;

private:
    std::vector<Figure> readFigures();

    PartOfYear part_;
    Content content_;
};

} // namespace iceline
