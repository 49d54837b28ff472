#pragma once

#include "files/StagedFiles.h"

#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// The first line of a journal, for the user who opens one.
inline constexpr std::string_view JournalHeading =
    "Iceline Scorebook journal 1: changes that were begun, to be finished at the next start.\n";

/// A commit as it is in a journal, after the heading and earlier commits (docs/journal.md).
std::string journalEntry(const std::vector<Change>& changes);

/// The changes of all whole commits of a journal, in order. The first commit that is cut, whose checksum does
/// not fit or that names a file outside the league folder ends them.
std::vector<Change> wholeCommits(std::string_view journal);

} // namespace iceline
