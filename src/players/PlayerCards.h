#pragma once

#include "files/Files.h"
#include "shell/Platform.h"

#include <string>
#include <string_view>

namespace iceline {

/// True when the site has a card of that player: his exact name with ".gif" in PlayerCards.
bool hasPlayerCard(Files& files, std::string_view name);

/// The card of a skater who has none of his own: "Skater1" or "Skater2", by chance.
std::string defaultSkaterCard(Platform& platform);

inline constexpr std::string_view DefaultGoalieCard = "Goalie1";

/// The card to show of a player, without its ending: his own or a default one.
std::string playerCard(Files& files, Platform& platform, std::string_view name, bool isGoalie);

/// Puts a page that shows players into the site, as writePage() does. A page that would differ from the one
/// that is there in nothing but default cards drawn by chance is left alone, too.
void writePageWithCards(Files& files, const std::string& path, std::string_view text);

} // namespace iceline
