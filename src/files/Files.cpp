#include "files/Files.h"

#include "files/FileError.h"
#include "files/NativePath.h"

#include <algorithm>

namespace iceline {

namespace {

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

} // namespace iceline
