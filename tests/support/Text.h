#pragma once

#include <string>
#include <vector>

namespace iceline::test {

/// The lines of a text whose lines end with CR LF.
std::vector<std::string> linesOf(const std::string& text);

} // namespace iceline::test
