#include "page/PageNames.h"

#include <algorithm>

namespace iceline {

bool isForbiddenInFileNames(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

std::string playerFileName(std::string_view name) {
    std::string fileName(name);
    std::ranges::replace_if(fileName, isForbiddenInFileNames, '_');
    return fileName;
}

} // namespace iceline
