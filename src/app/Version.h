#pragma once

#include <string>
#include <string_view>

namespace iceline {

/// The version that a program shows: its number and, where it was built from a clone, its commit; and on a
/// line of its own the libraries in it. Both programs share all of these but `ownLibrary`.
std::string versionText(std::string_view ownLibrary);

} // namespace iceline
