#include "page/PageNames.h"

#include "text/Names.h"

#include <algorithm>
#include <fmt/core.h>
#include <initializer_list>
#include <utility>

namespace iceline {

namespace {

/// The text with each character in `replacements` replaced.
std::string replaced(std::string_view text,
                     std::initializer_list<std::pair<char, std::string_view>> replacements) {
    std::string result;
    for (const char c : text) {
        const auto* found = std::ranges::find(replacements, c, &std::pair<char, std::string_view>::first);
        if (found == replacements.end())
            result += c;
        else
            result += found->second;
    }
    return result;
}

} // namespace

std::string shown(std::string_view name) {
    return replaced(name, {{'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}});
}

std::string linked(std::string_view fileName) {
    return replaced(fileName,
                    {{'%', "%25"}, {'#', "%23"}, {'?', "%3F"}, {'<', "%3C"}, {'>', "%3E"}, {'&', "&amp;"}});
}

std::string playerFileName(std::string_view name) {
    std::string fileName(name);
    std::ranges::replace_if(fileName, isForbiddenInFileNames, '_');
    return fileName;
}

std::string linkText(std::string_view path) {
    std::string link;
    for (const char c : path) {
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                           std::string_view("-._~/").find(c) != std::string_view::npos;
        link += plain ? std::string(1, c) : fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return link;
}

} // namespace iceline
