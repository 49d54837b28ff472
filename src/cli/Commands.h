#pragma once

namespace iceline::cli {

/// Runs one call of the companion program and returns its exit status: 0 done, 1 refused or failed, 2 the
/// arguments are off.
int run(int argc, char** argv);

} // namespace iceline::cli
