#pragma once

#include "files/DiskError.h"
#include "files/FileError.h"
#include "files/Files.h"
#include "files/NativePath.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace iceline::disk {

inline constexpr Task Reading{"cannot be read", std::filesystem::file_type::regular, true};
inline constexpr Task Writing{"cannot be written", std::filesystem::file_type::regular, false};
inline constexpr Task Removing{"cannot be removed", std::filesystem::file_type::regular, false};
inline constexpr Task Renaming{"cannot be given another name", std::filesystem::file_type::regular, true};
inline constexpr Task RenamingFolder{"cannot be given another name", std::filesystem::file_type::directory,
                                     true};
inline constexpr Task Listing{"cannot be listed", std::filesystem::file_type::directory, true};
inline constexpr Task MakingFolder{"cannot be made", std::filesystem::file_type::directory, false};
inline constexpr Task RemovingFolder{"cannot be removed", std::filesystem::file_type::directory, false};
inline constexpr Task Finding{"cannot be looked for", std::filesystem::file_type::unknown, false};
inline constexpr Task Syncing{"cannot be brought to the disk", std::filesystem::file_type::unknown, false};

/// Carries `action` out on the place of `path`, and turns what goes wrong into a FileError.
template <class Action>
auto at(const std::filesystem::path& root, const std::string& path, const Task& task, Action action) {
    refuseOutsideLeague(path);
    std::filesystem::path place = root;
    try {
        if (!path.empty())
            place /= toNative(path);
        return action(place);
    } catch (const std::system_error& error) {
        throw FileError::about(path.empty() ? fromNative(root) : path,
                               disk::explain(task, place, error.code()));
    }
}

} // namespace iceline::disk
