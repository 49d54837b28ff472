#pragma once

#include <string>
#include <string_view>

/// Names of players and coaches where they become names of files. Titles and cells show a name unchanged.
namespace iceline {

/// The name of a player's page without its ending, for files and links: every character that a
/// file system refuses becomes "_".
std::string playerFileName(std::string_view name);

} // namespace iceline
