#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace iceline::disk {

/// What a program wants of a place on the disk.
struct Task {
    const char* failure;               ///< how its message begins when it fails: "cannot be read"
    std::filesystem::file_type wanted; ///< regular or directory: what may be there
    bool mustExist;                    ///< nothing there is what is wrong, and not that its folder is missing
};

/// Why the task failed at the place, in plain words: "is a folder, not a file", "the file is missing",
/// "cannot be written: the disk is full".
std::string explain(const Task& task, const std::filesystem::path& place, const std::error_code& error);

} // namespace iceline::disk
