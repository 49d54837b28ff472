#include "players/PlayerCards.h"

#include "page/PageNames.h"
#include "store/LeaguePaths.h"

namespace iceline {

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
