#pragma once

#include "playoffs/Playoffs.h"

namespace iceline {

/// Writes `PlayoffTree.htm`.
void writePlayoffTree(Files& files, const Playoffs::Content& content);

} // namespace iceline
