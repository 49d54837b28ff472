#pragma once

#include "files/Files.h"
#include "shell/ApplicationState.h"
#include "shell/Platform.h"

namespace iceline {

/// Writes the home page of a part of the year, `index.htm` or `Playoffs.htm`: the leaders of the tables as
/// they are filled, each under the leader's picture, and on the league's page the last games. A leader
/// without a card gets a default one by the platform's chance.
void writeHomePage(Files& files, Platform& platform, const ApplicationState& state, PartOfYear part);

} // namespace iceline
