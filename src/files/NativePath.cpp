#include "files/NativePath.h"

namespace iceline {

std::filesystem::path toNative(const std::string& path) {
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

} // namespace iceline
