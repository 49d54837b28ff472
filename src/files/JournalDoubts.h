#pragma once

#include "files/JournalFormat.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

class Files;

/// What a file is now, to be known again: size and, unless it is to be extended alone, checksum.
FileMark markOf(const Change& change, Files& files);

/// Why the changes of a journal should not be made without asking, if they should not: "<file>: <why>" for a
/// file that is neither what it was before them nor what they make of it, nor torn by a power cut meanwhile
/// (cut short, or with zeros in place of bytes), or that a link leads out of the league folder.
std::optional<std::string> doubtAbout(const std::vector<NotedChange>& changes, Files& files);

} // namespace iceline
