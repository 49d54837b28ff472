#pragma once

#include "games/GameReport.h"
#include "history/HistoryChanges.h"
#include "shell/Window.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// A row of the window: an operation of the history.
struct HistoryRow {
    int number = 0;
    std::string time; ///< UTC, "2026-11-23T16:50:40Z"
    std::string what; ///< "import", "coach add"
    std::string title;
    bool undone = false;
    Step step;

    /// The game of an import or a correction, null of any other operation.
    const GameImported* game() const;
};

/// Which operations are shown.
struct HistoryFilter {
    std::optional<TeamIndex> team;
    std::string coach;              ///< "" for all
    std::string what;               ///< "" for all
    std::optional<PartOfYear> part; ///< of games; other operations are not shown then
    std::string text;               ///< what the title holds, whatever its case (ASCII)
};

/// All operations of the league, and the game report of each game, from the log alone.
class History : public Window {
public:
    using Window::Window;

    struct Content {
        std::vector<HistoryRow> rows;     ///< oldest first, those that the filter lets through
        std::vector<std::string> coaches; ///< all that the history names
        bool canUndo = false;
        bool canRedo = false;
    };

    /// Reads the log whole.
    void Form_Load() override;

    /// Shows the operations that `filter` lets through.
    void showFiltered();

    /// Undo, Redo and Correct work on the whole history, say what they did and show the rows anew. False when
    /// refused, which is said, too. Without a number the last operation is undone.
    bool Undo_Click(std::optional<int> number);
    bool Redo_Click();
    bool Correct_Click(int number, const Correction& correction);

    /// Writes the league's data into a folder that the user picks, see exportData(), and says so.
    void Export_Click();

    /// The report of a game as the game window showed it; none when the operation is no game.
    std::optional<GameReport> report(int number);

    const Content& content() const { return content_; }

    HistoryFilter filter;

private:
    bool lets(const HistoryRow& row) const;
    template <class Action>
    bool carryOut(Action action);

    std::vector<HistoryRow> all_;
    Content content_;
};

} // namespace iceline
