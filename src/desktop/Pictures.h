#pragma once

#include "league/TeamTable.h"

#include <QPixmap>

/// The picture store: what the windows show of teams and players, by TeamIndex. Each picture is drawn twice
/// as fine for screens that can show it.
namespace iceline::desktop::pictures {

QPixmap teamNameBig(TeamIndex team);  ///< large name banner; AllTeams has one, too
QPixmap teamNameMini(TeamIndex team); ///< small name banner; BlankTeam is an empty slot
QPixmap teamLogo(TeamIndex team);     ///< AllTeams has one, too

/// The picture of that name under the store's root, for instance "league-logo".
QPixmap named(const char* name);

/// The picture, at most `height` high on the screen, in its pixels before scaling.
QPixmap atMost(int height, const QPixmap& picture);

} // namespace iceline::desktop::pictures
