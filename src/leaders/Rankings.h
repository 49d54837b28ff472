#pragma once

#include "leaders/LeaderLists.h"
#include "shell/Window.h"

namespace iceline {

/// The leaders of the league in a part of the year: players, goalies, teams and three-star points.
///
/// Each table is filled by a load procedure from the teams' files and ordered by an update procedure. The
/// tables themselves are the league's, one of each for the season's and the play-offs' windows, so what an
/// update shows was filled by whichever was loaded last. While ShowWindows is False the window's load shows
/// nothing and writes the fragments of all orders and the home page of its part of the year.
class Rankings : public Window {
public:
    Rankings(Application& application, PartOfYear part) : Window(application), part_(part) {}

    /// The application's leaders of that part of the year, loaded.
    static Rankings& in(Application& app, PartOfYear part);

    /// A table as the window shows it.
    struct Table {
        std::vector<LeaderLine> rows; ///< names in capitals
        LeaderSort sort;              ///< which head is marked, and how
    };

    struct Content {
        std::string title; ///< the window's caption
        Table players;
        Table goalies;
        Table teams;
        Table stars;
    };

    void Form_Load() override;

    void tmLeadersLoad();
    void tmLeadersUpdate();
    void tmLeadersCol_Click(int Index); ///< 0 is the head of the teams themselves, column n is n + 1

    void lgLeadersLoadN();
    void lgLeadersUpdateN();
    void lColN_Click(int Index);

    void lgLeadersLoadG();
    void lgLeadersUpdateG();
    void lColG_Click(int Index);

    void StarLoad();
    void StarUpdate();
    void ThreeStarSort_Click();

    const Content& content() const { return content_; }

    /// Rows that the window's own loads have filled.
    int PlayerCount = 0;
    int GoalieCount = 0;
    int StarCount = 0;

    int PlayerSortColumn = 2;
    bool PlayerSortAscending = false;
    int GoalieSortColumn = 6;
    bool GoalieSortAscending = false;
    int TeamSortColumn = 1; ///< NoColumn: the natural order
    bool TeamSortAscending = false;
    bool StarSortAscending = false;

    bool HomePageMode = false; ///< the home page is being assembled

protected:
    void readAgain() override;

private:
    void loadTables();
    void updateTables();
    void show();
    void writePages();
    void showTable(Table& table, LeaderList list, LeaderSort sort);

    PartOfYear part_;
    Content content_;
};

} // namespace iceline
