#include "league/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace iceline {

namespace {

constexpr int SignificantDigits = 15;
constexpr double FirstBeyondSignificantDigits = 1e15;

/// Decimals that leave `value` its significant digits, 0 for values of that many digits or more.
int decimalsFor(double value) {
    const double size = std::fabs(value);
    const int wholeDigits = static_cast<int>(std::floor(std::log10(size))) + 1;
    return std::max(0, SignificantDigits - wholeDigits);
}

int significantDigits(std::string_view text) {
    const auto first = text.find_first_of("123456789");
    const auto digits = text.substr(std::min(first, text.size()));
    return static_cast<int>(std::ranges::count_if(digits, [](char c) { return c != '.'; }));
}

void dropTrailingZeros(std::string& text) {
    if (text.find('.') == std::string::npos)
        return;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
}

} // namespace

double rounded(double value, int decimals) {
    double scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    return std::nearbyint(value * scale) / scale;
}

int wholeNumber(double value) {
    return static_cast<int>(std::nearbyint(value));
}

double pct(double made, double attempted) {
    return attempted == 0 ? 0 : r3(made / attempted) * 100;
}

std::string minutesText(double seconds) {
    const int minutes = static_cast<int>(seconds / 60);
    const int rest = wholeNumber(seconds) % 60;
    return std::to_string(minutes) + (rest < 10 ? ":0" : ":") + std::to_string(rest);
}

std::string clockText(int seconds) {
    return minutesText(seconds);
}

std::string numberText(double value) {
    if (value == std::trunc(value) && std::fabs(value) < FirstBeyondSignificantDigits)
        return std::to_string(static_cast<std::int64_t>(value));
    std::array<char, 400> buffer;
    char* const last = buffer.data() + buffer.size();
    // The shortest text that gives the value is the one sought, unless it needs more digits.
    const auto shortest = std::to_chars(buffer.data(), last, value, std::chars_format::fixed);
    if (const std::string_view text(buffer.data(), shortest.ptr);
        significantDigits(text) <= SignificantDigits)
        return std::string(text);
    const auto end = std::to_chars(buffer.data(), last, value, std::chars_format::fixed, decimalsFor(value));
    std::string text(buffer.data(), end.ptr);
    dropTrailingZeros(text);
    return text == "-0" ? "0" : text;
}

std::string itemText(double value) {
    std::string text = numberText(value);
    const std::size_t digits = text.front() == '-' ? 1 : 0;
    if (text.compare(digits, 2, "0.") == 0)
        text.erase(digits, 1);
    return " " + text + " ";
}

double leadingNumber(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace iceline
