#pragma once

#include "files/Change.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// The first line of a journal, for the user who opens one.
inline constexpr std::string_view JournalHeading =
    "Iceline Scorebook journal 3: changes that were begun, to be finished at the next start.\n";

/// A change as it is in a journal, with what its file was before; journals of version 1 do not say.
struct NotedChange {
    Change change;
    std::optional<FileMark> before;
};

/// Whether a path can be in a journal: it names something in the league folder, in one way only.
bool canBeNoted(std::string_view path);

/// The paths that a change names.
std::vector<const std::string*> pathsOf(const Change& change);

/// The FNV-1a hash of 64 bits.
std::uint64_t checksum(std::string_view bytes);

/// A commit as it is in a journal, after the heading and earlier commits (docs/journal.md). A mark for each
/// change.
std::string journalEntry(const std::vector<Change>& changes, const std::vector<FileMark>& before);

/// Whether a later version of the program wrote the journal, in a form that this one does not know.
bool isOfLaterVersion(std::string_view journal);

/// The changes of all whole commits of a journal, in order. The first commit that is cut, whose checksum does
/// not fit or that names what is no file or folder in the league folder ends them.
std::vector<NotedChange> wholeCommits(std::string_view journal);

} // namespace iceline
