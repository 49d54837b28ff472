#include "text/Text.h"

#include <array>
#include <utf8proc.h>

namespace iceline {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// A character of the text, and the text after it.
struct FirstCharacter {
    utf8proc_int32_t character = 0; ///< negative where the text is not UTF-8
    std::string_view rest;
};

FirstCharacter firstOf(std::string_view text) {
    FirstCharacter first;
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    const auto taken = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &first.character);
    if (taken > 0)
        first.rest = text.substr(static_cast<std::size_t>(taken));
    return first;
}

void add(std::string& text, utf8proc_int32_t character) {
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto size = utf8proc_encode_char(character, bytes.data());
    text.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(size));
}

/// What Windows-1252 has where Latin-1 has control characters, from 0x80 on.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool differs = byte >= 0x80 && byte < 0x80 + Windows1252.size();
        add(text, differs ? Windows1252[byte - 0x80U] : byte);
    }
    return text;
}

} // namespace

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const FirstCharacter first = firstOf(text);
        if (first.character < 0)
            return false;
        text = first.rest;
    }
    return true;
}

bool isPlainUtf8(std::string_view text) {
    return !text.starts_with(ByteOrderMark) && isUtf8(text);
}

std::string inCapitals(std::string_view text) {
    if (!isUtf8(text))
        return std::string(text);
    std::string capitals;
    while (!text.empty()) {
        const FirstCharacter first = firstOf(text);
        add(capitals, utf8proc_toupper(first.character));
        text = first.rest;
    }
    return capitals;
}

std::string textOfFile(std::string bytes) {
    if (bytes.starts_with(ByteOrderMark))
        bytes.erase(0, ByteOrderMark.size());
    return isUtf8(bytes) ? bytes : fromWindows1252(bytes);
}

} // namespace iceline
