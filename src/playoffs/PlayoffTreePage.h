#pragma once

#include "playoffs/Playoffs.h"

namespace iceline {

/// The whole text of `PlayoffTree.htm`.
std::string playoffTreePage(const Playoffs::Content& content);

} // namespace iceline
