#pragma once

#include <span>
#include <vector>

namespace iceline {

enum class Direction { HighestFirst, LowestFirst };

/// Orders the rows of a table as repeated selection does, the league's way of ordering: each place goes to
/// the best unused row, looked for from the last row to the first with an inclusive comparison. So of equal
/// values the row that is first in the table comes first, in both directions.
///
/// Returns row numbers, best first: all of them, or the first `places` when the table has more.
std::vector<int> selectionOrder(std::span<const int> values, Direction direction, int places);
std::vector<int> selectionOrder(std::span<const int> values, Direction direction);

/// A click on the head of a column: on the one that sorts already it turns the direction round, on another it
/// keeps it.
void sortByClick(int clicked, int& column, bool& ascending);

/// The natural order of `count` rows, or that order reversed: what a table without a sort column shows.
std::vector<int> naturalOrder(int count, bool reversed);

} // namespace iceline
