#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace iceline::cli {

/// The words of a line of a script. Blanks separate them; a word that holds blanks is in double quotes; '#'
/// where a word could begin starts a comment. None when a double quote is not closed.
std::optional<std::vector<std::string>> wordsOf(std::string_view line);

} // namespace iceline::cli
