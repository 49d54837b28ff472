#pragma once

#include "files/Files.h"

#include <map>
#include <string>
#include <vector>

namespace iceline {

/// Files of the league by their path.
using FileContents = std::map<std::string, std::string>;

/// The files whose content the history accounts for: the data files and the list of box scores. Rosters are
/// the user's own and only looked at.
std::vector<std::string> booksOf(Files& files);

/// A copy of the books and the rosters.
FileContents copyOfBooks(Files& files);

bool isRoster(const std::string& path);

} // namespace iceline
