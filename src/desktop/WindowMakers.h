#pragma once

#include "shell/Windows.h"

namespace iceline::desktop {

class LeagueWindow;

/// Makes the window that shows a loaded window object.
using WindowMaker = LeagueWindow* (*)(Application&, WindowId, Window&);
WindowMaker windowMaker(WindowId id);

} // namespace iceline::desktop
