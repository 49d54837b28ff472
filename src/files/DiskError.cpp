#include "files/DiskError.h"

#include <utility>

namespace iceline::disk {

namespace {

using std::filesystem::file_type;

std::string inWords(const std::error_code& error) {
    static constexpr std::pair<std::errc, const char*> reasons[] = {
        {std::errc::no_space_on_device, "the disk is full"},
        {std::errc::permission_denied, "permission denied"},
        {std::errc::operation_not_permitted, "permission denied"},
        {std::errc::read_only_file_system, "the disk is read-only"},
        {std::errc::no_such_file_or_directory, "its folder is missing"},
        {std::errc::not_a_directory, "what should be its folder is a file"},
        {std::errc::directory_not_empty, "the folder is not empty"},
        {std::errc::filename_too_long, "its name is too long"},
        {std::errc::invalid_argument, "the disk does not take such a name"},
        {std::errc::file_exists, "something else has its name"},
        {std::errc::too_many_symbolic_link_levels, "it is a link"},
        {std::errc::file_too_large, "it would be too large"},
        {std::errc::io_error, "the disk reports an error"},
        {std::errc::not_supported, "it is not a regular file"},
    };
    for (const auto& [reason, words] : reasons)
        if (error == reason)
            return words;
    return error.message();
}

} // namespace

std::string explain(const Task& task, const std::filesystem::path& place, const std::error_code& error) {
    std::error_code ignored;
    const file_type found = std::filesystem::status(place, ignored).type();
    if (task.wanted == file_type::regular && found == file_type::directory)
        return "is a folder, not a file";
    if (task.wanted == file_type::directory && found == file_type::regular)
        return "is a file, not a folder";
    if (task.mustExist && found == file_type::not_found)
        return task.wanted == file_type::regular ? "the file is missing" : "the folder is missing";
    return std::string(task.failure) + ": " + inWords(error);
}

} // namespace iceline::disk
