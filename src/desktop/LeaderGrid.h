#pragma once

#include "desktop/Controls.h"
#include "leaders/LeaderLists.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace iceline::desktop {

/// A column of figures: the head's caption and place in its array, and the array of its labels.
struct LeaderGridColumn {
    QString caption;
    int head;   ///< element of the heads' array; LeaderGridForm::SingleHead when the head is no array
    int figure; ///< column of the leader table
    const char* labels;
};

/// What sets one leader table apart from the others: the names of its controls.
struct LeaderGridForm {
    static constexpr int SingleHead = -1;

    const char* numbers;  ///< label that holds the numbers of the rows
    const char* pictures; ///< array of the teams' banners; null where there are none
    const char* names;    ///< array of the names; null where there are none
    const char* heads;    ///< array of the heads, or the one head
    int rows;
    std::vector<LeaderGridColumn> columns;
    QString nameCaption; ///< over names or banners
    int nameHead =
        SingleHead - 1; ///< element of the heads' array that sorts by nothing; below SingleHead for none
};

/// A leader table: numbered rows of banners, names and figures under clickable heads.
class LeaderGrid : public QWidget {
    Q_OBJECT

public:
    /// `click` is told the element of the heads' array.
    LeaderGrid(const LeaderGridForm& form, std::function<void(int)> click, QWidget* parent);

    /// Shows the first rows of a list; `markedHead` is the element of the heads' array that it is sorted by.
    void show(const std::vector<LeaderLine>& lines, int markedHead, bool ascending);

private:
    struct Head {
        int element;
        SortHead* button;
    };

    void addHead(int element, const QString& caption, int column, const std::function<void(int)>& click);
    void addRow(int row);
    void showRow(int row, const LeaderLine* line);

    LeaderGridForm form_;
    QLabel* numbers_;
    std::vector<Head> heads_;
    std::vector<QLabel*> shownNumbers_;
    std::vector<QLabel*> pictures_;
    std::vector<QLabel*> names_;
    std::vector<std::vector<QLabel*>> figures_; ///< by column of the form
};

} // namespace iceline::desktop
