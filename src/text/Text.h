#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/// Letters. Texts are UTF-8.
namespace iceline {

/// Characters of a text.
inline std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// The text without the blanks before and after it.
inline std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool isUtf8(std::string_view text);

/// The text with each letter that has a capital letter in it; a text that is not UTF-8 stays as it is.
std::string inCapitals(std::string_view text);

/// True for UTF-8 without a byte order mark.
bool isPlainUtf8(std::string_view text);

/// The text of a file that any editor may have saved: without the byte order mark that may lead it, and read
/// as Windows-1252 when it is not UTF-8.
std::string textOfFile(std::string bytes);

} // namespace iceline
