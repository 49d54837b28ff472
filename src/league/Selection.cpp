#include "league/Selection.h"

#include <algorithm>
#include <numeric>

namespace iceline {

// Repeated selection gives equal values in the order of the table, whatever the direction: just what a stable
// sort by value gives in less time.
std::vector<int> selectionOrder(std::span<const int> values, Direction direction, int places) {
    const auto valueOf = [&](int row) { return values[static_cast<std::size_t>(row)]; };
    std::vector<int> order = naturalOrder(static_cast<int>(values.size()), false);
    std::ranges::stable_sort(order, [&](int one, int other) {
        return direction == Direction::HighestFirst ? valueOf(one) > valueOf(other)
                                                    : valueOf(one) < valueOf(other);
    });
    order.resize(std::min(order.size(), static_cast<std::size_t>(places)));
    return order;
}

std::vector<int> selectionOrder(std::span<const int> values, Direction direction) {
    return selectionOrder(values, direction, static_cast<int>(values.size()));
}

void sortByClick(int clicked, int& column, bool& ascending) {
    if (clicked == column)
        ascending = !ascending;
    column = clicked;
}

std::vector<int> naturalOrder(int count, bool reversed) {
    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    if (reversed)
        std::ranges::reverse(order);
    return order;
}

} // namespace iceline
