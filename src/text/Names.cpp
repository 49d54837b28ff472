#include "text/Names.h"

#include "text/Text.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utf8proc.h>

namespace iceline {

namespace {

/// Names that Windows keeps for devices, with or without an ending.
constexpr std::array<std::string_view, 7> DeviceNames{"con",    "prn",     "aux",   "nul",
                                                      "conin$", "conout$", "clock$"};
/// Names that it keeps with a digit after them.
constexpr std::array<std::string_view, 2> NumberedDevices{"com", "lpt"};

constexpr int CanonicalForm = UTF8PROC_STABLE | UTF8PROC_DECOMPOSE | UTF8PROC_CASEFOLD;
/// Takes forms of a letter or digit for it: "COM¹" for "com1".
constexpr int PlainForm = CanonicalForm | UTF8PROC_COMPAT;

std::string asciiLowerCase(std::string name) {
    std::ranges::transform(name, name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name;
}

/// The name as it is compared. One that is not UTF-8 is compared by bytes but for the case of ASCII.
std::string folded(std::string_view name, int form = CanonicalForm) {
    utf8proc_uint8_t* bytes = nullptr;
    const auto size =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(name.data()),
                     static_cast<utf8proc_ssize_t>(name.size()), &bytes, utf8proc_option_t(form));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(bytes, &std::free);
    if (size < 0)
        return asciiLowerCase(std::string(name));
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isDeviceName(std::string_view name) {
    const std::string stem = folded(trimmed(name.substr(0, name.find('.'))), PlainForm);
    if (std::ranges::find(DeviceNames, stem) != DeviceNames.end())
        return true;
    const bool isNumbered = !stem.empty() && isDigit(stem.back());
    return isNumbered &&
           std::ranges::find(NumberedDevices, std::string_view(stem).substr(0, stem.size() - 1)) !=
               NumberedDevices.end();
}

} // namespace

bool sameName(std::string_view a, std::string_view b) {
    return folded(a) == folded(b);
}

bool nameBefore(std::string_view a, std::string_view b) {
    const int order = folded(a).compare(folded(b));
    return order != 0 ? order < 0 : a < b;
}

bool isForbiddenInFileNames(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

std::optional<std::string> namingProblem(std::string_view name) {
    if (!isUtf8(name))
        return "must be UTF-8";
    if (name.size() > LongestFileName)
        return "can have at most " + std::to_string(LongestFileName) + " bytes";
    if (std::ranges::any_of(name, isForbiddenInFileNames))
        return "can hold letters, digits and signs other than / \\ \" : * ? < > |";
    if (name.ends_with('.') || name.ends_with(' '))
        return "cannot end in a point or a blank";
    if (isDeviceName(name))
        return "cannot be \"" + std::string(name) + "\", which Windows keeps for a device";
    return std::nullopt;
}

} // namespace iceline
