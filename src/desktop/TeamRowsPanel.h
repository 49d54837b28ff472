#pragma once

#include "league/TeamTable.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace iceline::desktop {

/// A column of figures: the name of its control array, and its head.
struct FigureColumn {
    QString controls;
    QString head;
};

/// A table with a row for each team: the team's name banner and its figures, and where there is a control
/// array for it a mark before the banner.
class TeamRowsPanel : public QWidget {
    Q_OBJECT

public:
    struct Arrays {
        QString banners;
        QString marks; ///< empty: no marks
        std::vector<FigureColumn> figures;
    };

    TeamRowsPanel(const Arrays& arrays, int rows, int rowHeight, QWidget* parent);

    /// A head over the banners, in the line of the figures' heads.
    void setTitle(const QString& title);

    /// A head over the columns of figures, in a line of its own above their heads.
    void addHeadOver(QWidget* head, int firstFigure, int figures);

    /// A hint before the heads in that line.
    void addHint(QWidget* hint);

    /// Draws a line below a row: the places above it go to the play-offs.
    void setLastPlayoffRow(int row) { lastPlayoffRow_ = row; }

    void show(std::size_t row, TeamIndex team, const QStringList& figures, const QString& mark = {});

    /// The banner and the figures of the first row.
    std::vector<QLabel*> firstRow() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QLabel* mark = nullptr;
        QLabel* banner = nullptr;
        std::vector<QLabel*> figures;
    };

    void addRow(const Arrays& arrays, int number, int height);

    QGridLayout* grid_;
    std::vector<Row> rows_;
    int lastPlayoffRow_ = -1;
};

} // namespace iceline::desktop
