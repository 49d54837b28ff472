#pragma once

#include <filesystem>
#include <string>

namespace iceline::desktop {

/// Runs the desktop program on the league that its arguments name, or else on that in its own folder; returns
/// its exit status.
int run(int argc, char** argv);

/// Runs the windows of a QApplication on the league in `folder` until the user ends the program; returns its
/// exit status. When the league cannot be used, or the user does not want its missing files made, that is 1
/// and no window has come up but the splash window and messages. A league that cannot be written, or whose
/// last change cannot be finished, can be looked at.
///
/// The game of the save state at the path `game` is shown at the start, unless that is empty.
int runLeague(const std::filesystem::path& folder, const std::string& game = {});

} // namespace iceline::desktop
