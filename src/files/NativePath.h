#pragma once

#include <filesystem>
#include <string>

namespace iceline {

/// A path of Files as the platform has it: bytes on Unix, from UTF-8 on Windows.
std::filesystem::path toNative(const std::string& path);

} // namespace iceline
