#include "files/NativePath.h"

namespace iceline {

std::filesystem::path toNative(const std::string& path) {
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

std::string fromNative(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace iceline
