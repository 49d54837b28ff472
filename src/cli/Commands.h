#pragma once

#include "cli/Console.h"

#include <string>
#include <vector>

namespace iceline::cli {

/// Runs one call of the companion program, given its arguments without the program's name, and returns its
/// exit status: 0 done, 1 refused or failed, 2 the arguments are wrong, 3 done but for some files of a
/// folder, 128 and the signal's number stopped.
int run(const std::vector<std::string>& arguments, Console console);

} // namespace iceline::cli
