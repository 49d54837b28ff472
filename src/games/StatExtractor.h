#pragma once

#include "games/GameReport.h"
#include "log/HistoryLog.h"
#include "shell/Platform.h"
#include "shell/Window.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// What follows the last folder of a path.
std::string fileNameOf(const std::string& path);

/// Why a game had better not be imported.
struct GameDoubt {
    enum class Kind { AlreadyCounted, Unfinished };

    Kind kind;
    std::string text; ///< "This game is in the books as game 12: ..."

    std::string question() const {
        return text + (kind == Kind::AlreadyCounted ? " Count it again?" : " Count it all the same?");
    }
};

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
        std::vector<std::string> coaches; ///< entries of both coach lists; entry 0 is "No Coach"
    };

    void Form_Load() override;

    /// "Select Game": selectGame(). The import, which sets FillWindow False, has publishGame() called.
    void LoadStats_Click();

    /// Reads and shows the game of that save state, as "Select Game" does with the file that the user picks.
    /// Nothing changes when no game is read from it.
    void showGame(const std::string& path);

    /// Reads the game of the save state at SaveStatePath: from here on the game in hand.
    const PlayedGame& readGameInHand();

    /// The game read last; readGameInHand() or LoadStats_Click must have read one.
    const PlayedGame& gameInHand() const { return game_.value(); }

    /// The game read last as the history tells of it when it is imported now; its stars must be chosen.
    GameImported bookEntry();

    /// What has become of the game that is shown: "read – not imported", "imported as game 12", or "in the
    /// books as game 12" when it was imported before it was read; empty without one.
    std::string standing();

    /// Whether a game is in the books already, or is none that was played to its end. A history that is
    /// damaged knows no game; the import asks about it.
    std::optional<GameDoubt> doubtAbout(const PlayedGame& game);

    /// An exhibition game is to be imported and nobody would get it.
    bool lacksCoach() const { return Exhibition && T1Coach < 1 && T2Coach < 1; }

    /// "Import Game". A game in doubt is imported when the user says so.
    void ImportStats_Click();

    /// What "Import Game" would do: everything is staged, `look` sees the league as it would be, and all is
    /// dropped. Returns why the game would be refused; `look` is not called then.
    std::optional<std::string> tryImport(const std::function<void()>& look);

    /// "Import Folder".
    void ImportFolder_Click();

    /// The user has chosen an entry of a coach list. Nobody coaches both teams: the list that was
    /// changed last wins and the other goes to "No Coach".
    void T1Coach_Click(int listIndex);
    void T2Coach_Click(int listIndex);

    /// Turns the league to the play-offs when no team has games left; see playoffs/SeasonEnd.h.
    void checkSeason();

    /// Renews the tables of home and away games and of the versus records, as every import does.
    void updateStandings();

    /// "Stat Extractor", with the mark of the play-offs while they are on.
    std::string caption() const;

    /// The coach chosen for a side, none for position 0 or below.
    std::optional<std::string> homeCoach() const { return coachAt(T1Coach); }
    std::optional<std::string> awayCoach() const { return coachAt(T2Coach); }

    /// The kind of the next import by the option buttons, none when neither is set outside the play-offs.
    std::optional<GameKind> gameKind() const;

    const Content& content() const { return content_; }

    bool FillWindow = true;           ///< a game that is loaded is shown; False: published
    bool GameLoaded = false;          ///< a game has been read and not yet imported
    int ImportMode = 0;               ///< 0 a single game, 1 a folder run
    int ImportCount = 0;              ///< games imported in this run
    Answer ImportAnswer = Answer::Ok; ///< the button pressed at the last refusal of a folder run
    bool Force = false;               ///< games in doubt are imported without a question
    int PassedOver = 0;               ///< files of the last folder run that were in doubt or refused

    /// The option buttons, one group.
    bool Season = false;
    bool Exhibition = true;

    /// Positions of the coach lists: -1 untouched, 0 "No Coach", from 1 on the coaches.
    int T1Coach = -1;
    int T2Coach = -1;

    std::string SaveStateFileName; ///< file name of the save state in hand, without its folder

    /// The save state in hand is one that is written again and again: where its name has a page already, the
    /// game gets a name of its own, so that both pages stay. Reading a game resets it.
    bool IsSlot = false;

private:
    /// The game of that fingerprint in the books; none where the history is damaged.
    std::optional<CountedGame> countedAs(const std::string& fingerprint);

    /// Writes the page, the list row and the recent games of the game in hand.
    void publishGame();

    std::optional<std::string> chooseSaveState();
    std::string nameInBooks();

    /// The report of the game in hand, with its stars.
    GameReport reportGame();
    std::optional<std::string> coachAt(int position) const;

    Content content_;
    std::optional<PlayedGame> game_;
    std::string shown_;    ///< fingerprint of the game that is shown
    std::string imported_; ///< fingerprint of the game imported last, since one was shown
};

} // namespace iceline
