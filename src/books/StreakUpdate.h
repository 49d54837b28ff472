#pragma once

#include "store/TeamRecord.h"

#include <string>

namespace iceline {

/// Adds a result letter to a run: the same letter lengthens it, another begins a new one. A tie is a letter
/// like the others.
void updateStreak(Streak& streak, const std::string& result);

} // namespace iceline
