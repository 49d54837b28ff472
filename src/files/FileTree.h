#pragma once

#include "files/Files.h"

#include <string>
#include <vector>

namespace iceline {

/// The files in a folder and all folders in it, by their paths within it: of each folder its files before
/// those of its sub-folders. Empty when there is no such folder.
std::vector<std::string> filesUnder(Files& files, const std::string& folder);

/// Removes a folder with everything in it; nothing happens when there is none.
void removeTree(Files& files, const std::string& folder);

/// Removes a folder with nothing in it; one that holds something, or is not there, is left alone.
void removeWhenEmpty(Files& files, const std::string& folder);

} // namespace iceline
