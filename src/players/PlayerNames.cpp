#include "players/PlayerNames.h"

#include "store/LeaguePaths.h"

#include <algorithm>

namespace iceline {

namespace {

bool isRefusedInFileNames(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

} // namespace

std::string playerFileName(std::string_view name) {
    std::string fileName(name);
    std::ranges::replace_if(fileName, isRefusedInFileNames, '_');
    return fileName;
}

bool hasPlayerCard(Files& files, std::string_view name) {
    return playerFileName(name) == name &&
           files.isFile(paths::page("PlayerCards/" + std::string(name) + ".gif"));
}

std::string defaultSkaterCard(Platform& platform) {
    return "Skater" + std::to_string(static_cast<int>(2 * platform.random() + 1));
}

std::string playerCard(Files& files, Platform& platform, std::string_view name, bool isGoalie) {
    if (hasPlayerCard(files, name))
        return std::string(name);
    return isGoalie ? std::string(DefaultGoalieCard) : defaultSkaterCard(platform);
}

} // namespace iceline
