#pragma once

#include "shell/Windows.h"

namespace iceline::desktop {

class LeagueWindow;

/// Makes the window that shows a loaded window object. Null for a row whose window is not built.
using WindowMaker = LeagueWindow* (*)(Application&, WindowId, Window&);
WindowMaker windowMaker(WindowId id);

} // namespace iceline::desktop
