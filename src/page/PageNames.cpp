#include "page/PageNames.h"

#include "text/Names.h"

#include <algorithm>

namespace iceline {

std::string playerFileName(std::string_view name) {
    std::string fileName(name);
    std::ranges::replace_if(fileName, isForbiddenInFileNames, '_');
    return fileName;
}

} // namespace iceline
