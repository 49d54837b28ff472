#include "shell/ErrorText.h"

#include "files/NativePath.h"

#include <filesystem>
#include <new>

namespace iceline {

namespace {

/// "<path>: <what is wrong>".
std::string textOf(const std::filesystem::filesystem_error& error) {
    const std::string reason = error.code().message();
    return error.path1().empty() ? reason : fromNative(error.path1()) + ": " + reason;
}

} // namespace

std::string errorText(const std::exception& error) {
    if (dynamic_cast<const std::bad_alloc*>(&error))
        return "there is not enough memory for this";
    if (const auto* fileSystem = dynamic_cast<const std::filesystem::filesystem_error*>(&error))
        return textOf(*fileSystem);
    return error.what();
}

} // namespace iceline
