#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

/// What differs from platform to platform in the use of the disk: DiskCalls_posix.cpp, DiskCalls_windows.cpp.
///
/// Functions that can fail say so by -1 or false and leave the reason in errno. The rest of the program uses
/// OpenFile and DiskFiles.
namespace iceline::disk {

enum class Purpose {
    Read,   ///< an existing regular file; anything else fails with EISDIR or ENOTSUP
    Create, ///< a file that must not exist yet
    Change, ///< a file, made when it is missing, to be read and written
};

int open(const std::filesystem::path& path, Purpose purpose);
bool close(int handle);

/// Reads or writes up to `size` bytes at the file's position and moves it; gives how many.
std::ptrdiff_t read(int handle, char* bytes, std::size_t size);
std::ptrdiff_t write(int handle, const char* bytes, std::size_t size);

std::intmax_t size(int handle);

/// Cuts the file to `length` bytes and moves the position there.
bool cut(int handle, std::uintmax_t length);

/// Gives a new file the permissions of the file that it is to replace. Fails when that one may not be
/// written; nothing happens when there is none.
bool takePermissions(int handle, const std::filesystem::path& replaced);

/// Gives a file the name of another one, which it replaces at once.
bool rename(const std::filesystem::path& file, const std::filesystem::path& name);

/// Locks the file for this process, until it is closed. Fails with EWOULDBLOCK when another holds it.
bool lock(int handle);

/// Returns when what was written is on the disk.
bool sync(int handle);
bool syncFile(const std::filesystem::path& file);

/// Returns when names that were made, changed or removed in the folder are on the disk.
bool syncFolder(const std::filesystem::path& folder);

/// Returns when everything written to the disk that holds the folder is on it. Fails with ENOSYS where the
/// platform has no such call.
bool syncDiskOf(const std::filesystem::path& folder);

int processId();
std::string hostName();

} // namespace iceline::disk
