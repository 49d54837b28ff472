#pragma once

namespace iceline::desktop {

/// Runs the desktop program on the league in the program's folder; returns its exit status.
int run(int argc, char** argv);

} // namespace iceline::desktop
