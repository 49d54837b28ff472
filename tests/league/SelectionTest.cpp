#include "league/Selection.h"

#include "support/Test.h"

#include <optional>
#include <random>

namespace iceline {
namespace {

using namespace test;

/// The league's ordering as it is told: each place by a walk from the last row to the first.
std::vector<int> orderByWalks(const std::vector<int>& values, Direction direction) {
    std::vector<int> order;
    std::vector<bool> used(values.size());
    while (order.size() < values.size()) {
        std::optional<std::size_t> best;
        for (std::size_t row = values.size(); row-- > 0;) {
            const bool takes = !best || (direction == Direction::HighestFirst ? values[row] >= values[*best]
                                                                              : values[row] <= values[*best]);
            if (!used[row] && takes)
                best = row;
        }
        used[*best] = true;
        order.push_back(static_cast<int>(*best));
    }
    return order;
}

TEST(SelectionOrder, OfEqualValuesTheFirstRowComesFirstBothWays) {
    const std::vector<int> values{5, -3, 8, 5, -3};
    EXPECT_THAT(selectionOrder(values, Direction::HighestFirst), ElementsAre(2, 0, 3, 1, 4));
    EXPECT_THAT(selectionOrder(values, Direction::LowestFirst), ElementsAre(1, 4, 0, 3, 2));
    EXPECT_THAT(selectionOrder(values, Direction::HighestFirst, 2), ElementsAre(2, 0));
    EXPECT_THAT(selectionOrder({}, Direction::HighestFirst, 2), ElementsAre());
    EXPECT_THAT(naturalOrder(3, true), ElementsAre(2, 1, 0));
}

TEST(SelectionOrder, IsThatOfTheWalksWhateverTheValues) {
    std::mt19937 random(7);
    for (int table = 0; table < 200; ++table) {
        std::vector<int> values(random() % 40);
        for (int& value : values)
            value = static_cast<int>(random() % 9) - 4;
        for (const Direction direction : {Direction::HighestFirst, Direction::LowestFirst})
            EXPECT_EQ(selectionOrder(values, direction), orderByWalks(values, direction));
    }
}

} // namespace
} // namespace iceline
