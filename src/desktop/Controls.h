#pragma once

#include "league/TeamTable.h"

#include <QLabel>
#include <QPushButton>
#include <QString>

#include <map>
#include <string_view>
#include <vector>

class QComboBox;
class QGroupBox;

/// The controls that the windows share. A control's object name is its given name.
namespace iceline::desktop {

/// Object name of an element of a control array: "Team1Goals(3)".
QString element(const char* name, int index);

/// A fixed caption over a column or before a figure.
QLabel* headLabel(const QString& text, QWidget* parent,
                  Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter);

/// A label that shows a figure.
QLabel* figureLabel(const QString& objectName, QWidget* parent);

/// A label that shows text, from the left.
QLabel* textLabel(const QString& objectName, QWidget* parent);

/// A label that shows a picture.
QLabel* pictureLabel(const QString& objectName, QWidget* parent);

/// Gives a widget a property on which the style sheet depends, and the looks that follow from it.
void setStyleProperty(QWidget* widget, const char* name, const QVariant& value);

/// Shows a team's small name banner, at most `height` high, and says the team's name to the pointer and to
/// screen readers. BlankTeam is an empty slot.
void showTeamBanner(QLabel* label, TeamIndex team, int height = 24);

QGroupBox* frame(const char* objectName, const QString& caption, QWidget* parent);

/// A list to choose from, as wide as its entries, which shows `prompt` until one is chosen.
QComboBox* choiceList(const char* objectName, const QString& prompt, QWidget* parent);

/// A list of the league's teams by full name, which shows `prompt` until one is chosen.
QComboBox* teamList(const char* objectName, const QString& prompt, QWidget* parent);

/// The button that closes a window.
QPushButton* exitButton(const char* objectName, QWidget* window);

/// How a table's head is marked: the column that a table is sorted by is red from the highest value down and
/// blue from the lowest up.
enum class SortMark { None, Descending, Ascending };

/// A clickable column head.
class SortHead : public QPushButton {
    Q_OBJECT

public:
    SortHead(const QString& objectName, const QString& caption, QWidget* parent);

    void mark(SortMark mark);

private:
    QString caption_;
};

/// The element of a control array that shows text in a row of a table.
void setText(const std::vector<QLabel*>& labels, std::size_t row, std::string_view text);

/// The labels of a window by their given names, for content that says which control shows which figure. A
/// label that only one place of the window uses is better a member of its own.
class NamedLabels {
public:
    /// Keeps a label under its object name, and returns it.
    QLabel* add(QLabel* label);

    /// Throws std::out_of_range, with a message that gives the name, when no label has that name.
    QLabel& operator[](std::string_view name) const;

private:
    std::map<std::string, QLabel*, std::less<>> labels_;
};

/// Shows text in the label of that name among `labels`. Throws as NamedLabels does.
void setText(const NamedLabels& labels, std::string_view name, std::string_view text);

} // namespace iceline::desktop
