#pragma once

#include <string>

namespace iceline {

/// What the list of all box scores begins with, down to the heads of its table; every import adds a row.
std::string boxScoreListHead();

} // namespace iceline
