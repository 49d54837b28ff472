#pragma once

#include "games/GameReport.h"
#include "shell/Platform.h"
#include "shell/Window.h"
#include "store/PlayerFiles.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// The game window: through it every game enters the league.
class StatExtractor : public Window {
public:
    using Window::Window;

    /// The application's game window, loaded.
    static StatExtractor& in(Application& app);

    /// What the window shows.
    struct Content {
        std::string FileName = "[No File Loaded]";
        std::optional<GameReport> report; ///< the game read last
        std::string ScoringSummary;       ///< column text, lines ended by CR LF
        std::string PenaltySummary;
        std::vector<std::string> coaches; ///< entries of both coach lists; entry 0 is "No Coach"
    };

    void Form_Load() override;

    /// "Select Game" while FillWindow is True: file dialog, read, show. Called by the import with FillWindow
    /// False: reads the file at SaveStatePath, writes page, list row and recent games, shows nothing.
    void LoadStats_Click();

    /// What LoadStats_Click does once it has read its files, for callers that hold them already. The game
    /// must be one that the league can take (SaveState::refusal).
    void loadGame(const SaveState& save, const GameRosters& rosters);

    /// "Import Game".
    void ImportStats_Click();

    /// "Import Folder".
    void ImportFolder_Click();

    /// The user has chosen an entry of a coach list. A coach cannot stand behind both teams: the list that
    /// was changed last wins and the other goes to "No Coach".
    void T1Coach_Click(int listIndex);
    void T2Coach_Click(int listIndex);

    /// Turns the league to the play-offs when no team has games left; see standings/SeasonEnd.h.
    void checkSeason();

    /// "Stat Extractor", with the mark of the play-offs while they are on.
    std::string caption() const;

    /// The coach chosen for a side, none for position 0 or below.
    std::optional<std::string> homeCoach() const { return coachAt(T1Coach); }
    std::optional<std::string> awayCoach() const { return coachAt(T2Coach); }

    /// The kind of the next import by the option buttons, none when neither is set outside the play-offs.
    std::optional<GameKind> gameKind() const;

    const Content& content() const { return content_; }

    bool FillWindow = true;           ///< False only while the import calls LoadStats_Click
    bool GameLoaded = false;          ///< a game has been read and not yet imported
    int ImportMode = 0;               ///< 0 a single game, 1 a folder run
    int ImportCount = 0;              ///< games imported in this run
    Answer ImportAnswer = Answer::Ok; ///< the button pressed at the last refusal of a folder run

    /// The option buttons, one group.
    bool Season = false;
    bool Exhibition = true;

    /// Positions of the coach lists: -1 untouched, 0 "No Coach", behind it the coaches.
    int T1Coach = -1;
    int T2Coach = -1;

    std::string SaveStateFileName; ///< file name of the save state in hand, without its folder
    std::array<std::string, RosterRows> HomeNames;
    std::array<std::string, RosterRows> AwayNames;

private:
    /// Renews the tables of home and away games and of the versus records, as every import does.
    void updateStandings();

    std::optional<std::string> chooseSaveState();
    void show(const GameReport& report);
    void publish(const GameReport& report);
    std::optional<std::string> coachAt(int position) const;

    Content content_;
};

} // namespace iceline
