#pragma once

#include <cstdint>
#include <string>

namespace iceline {

/// What a file was when a change to it was worked out: enough to know it again.
struct FileMark {
    bool exists = false;
    std::uint64_t size = 0;
    std::uint64_t checksum = 0; ///< 0 for a file that is only extended

    friend bool operator==(const FileMark&, const FileMark&) = default;
};

/// One step of what an operation does to the disk.
struct Change {
    enum class Kind { MakeFolder, Write, Extend, Remove, RemoveFolder, RenameFolder };

    Kind kind = Kind::Write;
    std::string path;
    std::uintmax_t length = 0; ///< Extend: the file's length before the content
    std::string content;       ///< Write, Extend; RenameFolder: the new path

    friend bool operator==(const Change&, const Change&) = default;
};

} // namespace iceline
