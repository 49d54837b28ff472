#include "files/Files.h"

#include "files/FileError.h"
#include "files/NativePath.h"

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

constexpr bool OnWindows = std::filesystem::path::preferred_separator != '/';

bool isSeparator(char c) {
    return c == '/' || (OnWindows && c == '\\');
}

bool climbs(const std::string& path) {
    for (std::size_t at = path.find(".."); at != std::string::npos; at = path.find("..", at + 1)) {
        const bool begins = at == 0 || isSeparator(path[at - 1]);
        const bool ends = at + 2 == path.size() || isSeparator(path[at + 2]);
        if (begins && ends)
            return true;
    }
    return false;
}

bool hasRoot(const std::string& path) {
    return (!path.empty() && isSeparator(path.front())) || (OnWindows && path.find(':') != std::string::npos);
}

/// A zero byte would hide the rest of the path from the system.
bool hasZero(const std::string& path) {
    return path.find('\0') != std::string::npos;
}

} // namespace

bool Files::holds(const std::string& path, std::string_view content) {
    return size(path) == content.size() && isFile(path) && read(path) == content;
}

void Files::rename(const std::string& path, const std::string& name) {
    write(name, read(path), Durability::Now);
    remove(path);
}

bool Files::leadsOut(const std::string&) {
    return false;
}

bool isInLeague(const std::string& path) {
    return !hasRoot(path) && !climbs(path) && !hasZero(path);
}

void refuseOutsideLeague(const std::string& path) {
    if (isInLeague(path))
        return;
    if (hasZero(path) || !toNative(path).is_absolute())
        throw FileError::about(path, "leads out of the league folder");
}

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, std::max<std::size_t>(slash, 1));
}

bool nameBefore(std::string_view a, std::string_view b) {
    const int order = compareWithoutCase(a, b);
    return order != 0 ? order < 0 : a < b;
}

bool sameName(std::string_view a, std::string_view b) {
    return compareWithoutCase(a, b) == 0;
}

} // namespace iceline
