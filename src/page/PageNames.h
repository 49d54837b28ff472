#pragma once

#include <string>
#include <string_view>

/// Players' names where they become names of files. Titles and cells show a name as it stands.
namespace iceline {

/// The name of a player's page without its ending, for files and links: what a file system refuses
/// (/ \ : * ? " < > | and control characters) becomes "_".
std::string playerFileName(std::string_view name);

} // namespace iceline
