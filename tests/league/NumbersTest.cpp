#include "league/Numbers.h"

#include <gtest/gtest.h>

namespace iceline {
namespace {

TEST(NumberText, HasUpToFifteenDigitsAndNoTrailingZeros) {
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(82), "82");
    EXPECT_EQ(numberText(-7), "-7");
    EXPECT_EQ(numberText(0.875), "0.875");
    EXPECT_EQ(numberText(-0.5), "-0.5");
    EXPECT_EQ(numberText(3.20), "3.2");
    EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(numberText(312.4390243902439), "312.439024390244");
    EXPECT_EQ(numberText(0.00001), "0.00001");
    EXPECT_EQ(numberText(999999999999999), "999999999999999");
    EXPECT_EQ(numberText(1e15), "1000000000000000");
    EXPECT_EQ(numberText(4e17), "400000000000000000");
    EXPECT_EQ(numberText(99999999999999.96), "100000000000000");
}

TEST(ClockText, HasTwoDigitsOfSeconds) {
    EXPECT_EQ(clockText(609), "10:09");
    EXPECT_EQ(clockText(610), "10:10");
    EXPECT_EQ(minutesText(119.6), "1:00");
}

TEST(ItemText, DropsTheLeadingZeroBetweenBlanks) {
    EXPECT_EQ(itemText(0.875), " .875 ");
    EXPECT_EQ(itemText(-0.5), " -.5 ");
    EXPECT_EQ(itemText(0), " 0 ");
    EXPECT_EQ(itemText(10), " 10 ");
    EXPECT_EQ(itemText(1.05), " 1.05 ");
}

TEST(Rounding, TakesATieToTheEvenDigit) {
    EXPECT_EQ(r1(0.25), 0.2);
    EXPECT_EQ(r2(0.875), 0.88);
    EXPECT_EQ(r3(2.0 / 3), 0.667);
    EXPECT_EQ(wholeNumber(2.5), 2);
    EXPECT_EQ(wholeNumber(-3.5), -4);
    EXPECT_EQ(numberText(pct(1, 3)), "33.3");
    EXPECT_EQ(pct(3, 0), 0);
}

} // namespace
} // namespace iceline
