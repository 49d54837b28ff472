#include "support/Text.h"

namespace iceline::test {

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        lines.push_back(text.substr(at, end - at));
        at = end == std::string::npos ? end : end + 2;
    }
    return lines;
}

} // namespace iceline::test
