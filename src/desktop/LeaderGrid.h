#pragma once

#include "desktop/Controls.h"
#include "leaders/LeaderLists.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace iceline::desktop {

/// A column of figures: the head's caption and the array of its labels.
struct LeaderGridColumn {
    QString caption;
    const char* labels;
};

/// The columns of a leader table in their order.
template <class Columns>
std::vector<LeaderGridColumn> gridColumns(const Columns& columns) {
    std::vector<LeaderGridColumn> made;
    for (const auto& column : columns)
        made.push_back({QString::fromUtf8(column.caption.data(), static_cast<int>(column.caption.size())),
                        column.control});
    return made;
}

/// The heads of a leader table: an array with an element for each column of figures; the same with an element
/// before them, over the names, which sorts by nothing; or the one head of the one column.
enum class LeaderHeads { Figures, NamesAndFigures, Single };

/// What sets one leader table apart from the others: its columns and the names of its controls.
struct LeaderGridForm {
    const char* numbers;  ///< label that holds the numbers of the rows
    const char* pictures; ///< array of the teams' banners; null where there are none
    const char* names;    ///< array of the names; null where there are none
    const char* heads;    ///< array of the heads, or the one head
    LeaderHeads headsAre;
    int rows;
    QString nameCaption; ///< over names or banners
    std::vector<LeaderGridColumn> columns;
};

/// The table of the teams' leaders, which the coaches' ranking shares but for its names: numbers in Text3,
/// banners in LeagueLeaderTeam3, heads in tmLeadersCol, 24 rows.
LeaderGridForm teamLeaderForm();

/// A leader table: numbered rows of banners, names and figures under clickable heads.
class LeaderGrid : public QWidget {
    Q_OBJECT

public:
    /// `click` is told the element of the heads' array, 0 for a single head.
    LeaderGrid(const LeaderGridForm& form, std::function<void(int)> click, QWidget* parent);

    /// Shows the first rows of a list, and by which head it is sorted.
    void show(const std::vector<LeaderLine>& lines, LeaderSort sort);

private:
    struct Head {
        int column; ///< of the leader table, or NoColumn
        SortHead* button;
    };

    /// A row's labels; null where the table has none of the kind.
    struct Row {
        QLabel* number = nullptr;
        QLabel* picture = nullptr;
        QLabel* name = nullptr;
        std::vector<QLabel*> figures;
    };

    void addNameHead(const std::function<void(int)>& click);
    void addHead(int column, const QString& caption, int place, const std::function<void(int)>& click);
    Row makeRow(int row);
    int namePlace() const;
    static void fill(const Row& row, const LeaderLine& line);
    static void empty(const Row& row);

    LeaderGridForm form_;
    QLabel* numbers_;
    std::vector<Head> heads_;
    std::vector<Row> rows_;
};

} // namespace iceline::desktop
