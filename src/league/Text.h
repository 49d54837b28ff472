#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace iceline {

/// Characters of a UTF-8 text.
inline std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// The text without the blanks before and after it.
inline std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

} // namespace iceline
