#include "players/PlayerCards.h"

#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

constexpr std::string_view DefaultSkaterCard = "Skater";

/// A page with the default card of all skaters the same.
std::string withoutChance(std::string page) {
    const std::string card = "/PlayerCards/" + std::string(DefaultSkaterCard);
    for (std::size_t at = page.find(card); at != std::string::npos; at = page.find(card, at)) {
        at += card.size();
        if (page.compare(at, 5, "1.gif") == 0 || page.compare(at, 5, "2.gif") == 0)
            page[at] = '0';
    }
    return page;
}

} // namespace

bool hasPlayerCard(Files& files, std::string_view name) {
    return playerFileName(name) == name &&
           files.isFile(paths::page("PlayerCards/" + std::string(name) + ".gif"));
}

std::string defaultSkaterCard(Platform& platform) {
    return std::string(DefaultSkaterCard) + std::to_string(static_cast<int>(2 * platform.random() + 1));
}

std::string playerCard(Files& files, Platform& platform, std::string_view name, bool isGoalie) {
    if (hasPlayerCard(files, name))
        return std::string(name);
    return isGoalie ? std::string(DefaultGoalieCard) : defaultSkaterCard(platform);
}

void writePageWithCards(Files& files, const std::string& path, std::string_view text) {
    if (!files.isFile(path) || withoutChance(files.read(path)) != withoutChance(std::string(text)))
        writePage(files, path, text);
}

} // namespace iceline
