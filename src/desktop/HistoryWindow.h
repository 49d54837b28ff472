#pragma once

#include "desktop/Guard.h"
#include "desktop/ScrolledPage.h"
#include "history/History.h"

#include <QStandardItemModel>
#include <QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;
class QTableView;

namespace iceline::desktop {

/// All operations of the league, newest first, to sort, filter and search. A row opens the report of its
/// game; buttons take an operation back, correct a game and export the league's data. What other windows have
/// done in the meantime shows when the window is activated.
class HistoryWindow : public QWidget {
    Q_OBJECT

public:
    explicit HistoryWindow(Application& application);

    /// Reads the history again, whether the window is shown or not, and shows what passes the filters.
    void showAgain();

    /// Takes back the operation done last, or puts the one undone last in place again; all open windows show
    /// it.
    void undoLast();
    void redoLast();

protected:
    bool event(QEvent* event) override;

private:
    enum Column { Number, Time, Operation, State, Columns };

    QWidget* makeFilters();
    QTableView* makeTable();
    QWidget* makeButtons();
    QPushButton* addButton(QLayout& row, const char* name, const QString& caption);
    QComboBox* addFilter(QLayout& row, const char* name, const QString& accessibleName);
    void takeFilters();
    void fill();
    void fillCoaches();
    void showButtons();

    /// The row that is chosen, when its operation is a game; else null.
    const HistoryRow* chosenGame() const;

    void correctChosen();
    void showReport();

    /// The operation in the row that is chosen.
    std::optional<int> chosen() const;

    /// Runs a procedure of the history and shows what it has changed in all open windows.
    template <class Procedure>
    void run(Procedure procedure) {
        guarded(this, [&] {
            procedure();
            app_.windows().renewOpen();
        });
        showAgain();
    }

    Application& app_;
    History history_;
    QStandardItemModel rows_;
    ScrolledPage page_{this};
    QLineEdit* search_ = nullptr;
    QComboBox* team_ = nullptr;
    QComboBox* coach_ = nullptr;
    QComboBox* kind_ = nullptr;
    QComboBox* part_ = nullptr;
    QTableView* table_ = nullptr;
    QPushButton* undo_ = nullptr;
    QPushButton* redo_ = nullptr;
    QPushButton* correct_ = nullptr;
    QPushButton* report_ = nullptr;
    int committedWhenRead_ = -1; ///< operations of this run that the rows take in
};

} // namespace iceline::desktop
