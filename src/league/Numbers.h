#pragma once

#include <string>
#include <string_view>

namespace iceline {

/// `value` rounded to `decimals` places (0 to 9), a tie to the even digit: multiply, round, divide.
double rounded(double value, int decimals);

inline double r1(double value) {
    return rounded(value, 1);
}
inline double r2(double value) {
    return rounded(value, 2);
}
inline double r3(double value) {
    return rounded(value, 3);
}

/// The nearest whole number, a tie to the even one. `value` must fit an int.
int wholeNumber(double value);

/// The league's percentages: made / attempted as a fraction of three decimals, times 100; 0 when nothing was
/// attempted. 1 of 3 gives 33.3.
double pct(double made, double attempted);

/// A total per game, not rounded; 0 without a game.
inline double perGame(double total, int games) {
    return games == 0 ? 0 : total / games;
}

/// Goals per shot in percent, r1; 0 without a shot.
inline double shootingPct(int goals, int shots) {
    return shots == 0 ? 0 : r1(static_cast<double>(goals) / shots * 100);
}

/// Seconds as minutes, a colon and two digits of seconds. The minutes are cut and the seconds rounded apart
/// from them, so 119.6 gives "1:00".
std::string minutesText(double seconds);

/// Minutes, a colon and two digits for whole seconds: 605 gives "10:05".
std::string clockText(int seconds);

/// A number as it is joined with other text: up to 15 significant digits, no trailing zeros, no exponent, and
/// a leading zero: 0.875.
std::string numberText(double value);

/// A number written as an item of its own on a page: without a leading zero and with a blank on each side:
/// " .875 ".
std::string itemText(double value);

/// The number that a text begins with; 0 where it begins with none.
double leadingNumber(std::string_view text);

} // namespace iceline
