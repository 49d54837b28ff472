#include "store/Files.h"

#include <algorithm>

namespace iceline {

namespace {

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

int compareWithoutCase(std::string_view a, std::string_view b) {
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        const auto left = static_cast<unsigned char>(lowerCase(a[i]));
        const auto right = static_cast<unsigned char>(lowerCase(b[i]));
        if (left != right)
            return left < right ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

} // namespace

bool nameBefore(std::string_view a, std::string_view b) {
    const int order = compareWithoutCase(a, b);
    return order != 0 ? order < 0 : a < b;
}

bool sameName(std::string_view a, std::string_view b) {
    return compareWithoutCase(a, b) == 0;
}

} // namespace iceline
