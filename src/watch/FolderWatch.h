#pragma once

#include "files/DiskFiles.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace iceline {

/// Tells which files of a folder appear or change, once each is whole as far as that can be seen from
/// outside.
class FolderWatch {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// How long a file has not changed when it counts as whole.
    static constexpr std::chrono::seconds Stillness{2};

    /// How long to wait from one look at the folder to the next.
    static constexpr std::chrono::milliseconds Pause{500};

    /// `folder` is an absolute path of Files. What is there now is left alone until it changes. Throws
    /// FileError when the folder cannot be read.
    explicit FolderWatch(const std::string& folder);

    /// The paths of the files that have appeared or changed and were still for a while since, in the order of
    /// their names; each once until it changes again. Throws FileError when the folder cannot be read.
    std::vector<std::string> wholeFiles(Time now);

    const std::string& folder() const { return folder_; }

private:
    /// What tells a file from the one that was there before.
    struct Look {
        std::uintmax_t size = 0;
        std::filesystem::file_time_type time;

        bool operator==(const Look&) const = default;
    };

    struct File {
        Look look;
        Time since; ///< when it was seen so first
        bool told = false;
    };

    std::map<std::string, Look> looks();

    DiskFiles disk_;
    std::string folder_;
    std::map<std::string, File> files_; ///< by path
};

} // namespace iceline
