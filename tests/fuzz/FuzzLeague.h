#pragma once

#include "books/GameImport.h"
#include "support/MemoryFiles.h"

#include <string>
#include <vector>

namespace iceline::test {

/// A league half through its season with two coaches, in its play-offs, and a new one.
const std::vector<MemoryFiles>& fuzzLeagues();

/// Save states of made-up games.
std::vector<std::string> sampleSaveStates();

/// A file as each of the leagues has it.
std::vector<std::string> fromLeagues(const std::string& path);

/// The coaches of the leagues.
inline const std::string HomeCoach = "Ann";
inline const std::string AwayCoach = "Bo";

} // namespace iceline::test
