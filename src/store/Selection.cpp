#include "store/Selection.h"

#include <algorithm>
#include <numeric>

namespace iceline {

namespace {

constexpr int NoRow = -1;

bool isAtLeastAsGood(int value, int best, Direction direction) {
    return direction == Direction::HighestFirst ? value >= best : value <= best;
}

int bestUnused(std::span<const int> values, Direction direction, const std::vector<bool>& used) {
    int best = NoRow;
    for (int row = static_cast<int>(values.size()) - 1; row >= 0; --row)
        if (!used[row] && (best == NoRow || isAtLeastAsGood(values[row], values[best], direction)))
            best = row;
    return best;
}

} // namespace

std::vector<int> selectionOrder(std::span<const int> values, Direction direction, int places) {
    std::vector<bool> used(values.size(), false);
    std::vector<int> order;
    const int count = std::min(places, static_cast<int>(values.size()));
    while (static_cast<int>(order.size()) < count) {
        order.push_back(bestUnused(values, direction, used));
        used[order.back()] = true;
    }
    return order;
}

std::vector<int> selectionOrder(std::span<const int> values, Direction direction) {
    return selectionOrder(values, direction, static_cast<int>(values.size()));
}

std::vector<int> naturalOrder(int count, bool reversed) {
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    if (reversed)
        std::ranges::reverse(order);
    return order;
}

} // namespace iceline
