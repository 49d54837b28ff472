#pragma once

#include <filesystem>
#include <string>

namespace iceline {

/// A path of Files as the platform has it: bytes on Unix, from UTF-8 on Windows.
std::filesystem::path toNative(const std::string& path);

/// The inverse, with the platform's separators, for a message or an argument.
std::string fromNative(const std::filesystem::path& path);

} // namespace iceline
