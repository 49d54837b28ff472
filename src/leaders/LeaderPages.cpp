#include "leaders/LeaderPages.h"

#include "leaders/LeaderLists.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "page/PageParts.h"

namespace iceline {

namespace {

/// Columns in the order of a fragment's cells, which is not that of the window.
template <std::size_t Columns>
using CellOrder = std::array<std::size_t, Columns>;

/// The columns with these captions, of which none may be missing.
template <class Stats, std::size_t Columns, class... Captions>
consteval CellOrder<Columns> cells(const std::array<LeaderColumn<Stats>, Columns>& columns,
                                   const Captions&... captions) {
    static_assert(sizeof...(captions) == Columns);
    return {columnOf(columns, captions)...};
}

constexpr auto PlayerCells =
    cells(PlayerLeaderColumns, "Pow. Rank", "G", "A", "Pts.", "PPG", "PP", "SH", "SOG", "S%", "PIM", "GP");
constexpr auto GoalieCells =
    cells(GoalieLeaderColumns, "PR", "GP", "W", "L", "T", "GAA", "SHO", "Save%", "SF", "GA", "A");
constexpr auto TeamCells = cells(TeamLeaderColumns, "GP", "P Rank", "H Rank", "A Rank", "Pts.", "Win %",
                                 "GPG", "GAG", "PP%", "PK%", "SPG", "SAPG");

template <std::size_t Columns>
std::string figureCells(const LeaderLine& line, const CellOrder<Columns>& order) {
    return centredCells(order, [&](std::size_t column) { return std::string_view(line.figures[column]); });
}

void addPlayerRow(PageText& page, const LeaderLine& line) {
    page.line(
        R"(<tr><td><center><b>{}</b></center></td><td><center><img src="../LogoMinis/{}.gif"></center></td>)"
        R"(<td>{}<td><center>{}</center></td></tr>)",
        line.number, TeamAbbr[line.team], shown(line.name), figureCells(line, PlayerCells));
}

void addGoalieRow(PageText& page, const LeaderLine& line) {
    page.line(R"(<tr><td><b>{}</b></center></td><td><img src="../LogoMinis/{}.gif"></td></center>)"
              R"(<td>{}<td><center>{}</center></td></tr>)",
              line.number, TeamAbbr[line.team], shown(line.name), figureCells(line, GoalieCells));
}

void addTeamRow(PageText& page, const LeaderLine& line) {
    page.line(R"(<tr><td><center><b>{}</b></center></td><td><center><img src="../LogoMinis/{}.gif"></img>)"
              R"(</center></td><td><center>{}</center></td></tr>)",
              line.number, TeamAbbr[line.team], figureCells(line, TeamCells));
}

void addStarRow(PageText& page, const LeaderLine& line) {
    page.line(R"(<tr><td><center><b>{}</b></center></td><td><center><img src="../LogoMinis/{}.gif"></img>)"
              R"(</center></td><td><center>{}</td><td><center>{}</center></td></tr>)",
              line.number, TeamAbbr[line.team], shown(line.name), line.figures.front());
}

/// The fragments of a part of the year. The number in a fragment's name tells its order: first come the
/// columns with the highest value first, then the columns with the lowest value first.
class Fragments {
public:
    Fragments(Files& files, const ApplicationState& state, PartOfYear part)
        : files_(files), state_(state),
          folder_(part == PartOfYear::Season ? "Rankings/" : "PlayoffRankings/") {}

    void writePlayers() const {
        constexpr int Columns = PlayerLeaderColumns.size();
        static_assert(GoalieLeaderColumns.size() == Columns);
        for (const bool ascending : {true, false}) {
            for (int column = 0; column < Columns; ++column) {
                const LeaderSort sort{column, ascending};
                const std::string number = std::to_string(ascending ? Columns + column : column);
                write("Normal" + number, playerLeaders(state_, sort), addPlayerRow);
                write("Goalies" + number, goalieLeaders(state_, sort), addGoalieRow);
            }
        }
    }

    void writeTeams() const {
        // The natural order comes first; the last two columns have no fragment with the lowest value first.
        constexpr int HighestFirst = TeamLeaderColumns.size() + 1;
        constexpr int LowestFirst = HighestFirst - 2;
        for (const bool ascending : {true, false})
            for (int order = 0; order < (ascending ? LowestFirst : HighestFirst); ++order)
                write("Teams" + std::to_string(ascending ? HighestFirst + order : order),
                      teamLeaders(state_, {NoColumn + order, ascending}), addTeamRow);
    }

    void writeStars() const {
        for (const bool ascending : {true, false})
            write(ascending ? "Star0" : "Star1", starLeaders(state_, {0, ascending}), addStarRow);
    }

private:
    void write(const std::string& name, const LeaderList& list,
               void (*addRow)(PageText&, const LeaderLine&)) const {
        PageText page;
        for (const LeaderLine& line : list.lines)
            addRow(page, line);
        writePage(files_, paths::page(folder_ + name + ".php"), page.text());
    }

    Files& files_;
    const ApplicationState& state_;
    std::string folder_;
};

} // namespace

void writeLeaderPages(Files& files, const ApplicationState& state, PartOfYear part) {
    const Fragments fragments(files, state, part);
    fragments.writePlayers();
    fragments.writeTeams();
    fragments.writeStars();
}

} // namespace iceline
