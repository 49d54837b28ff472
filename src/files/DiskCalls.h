#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace iceline::disk {

enum class Purpose {
    Read,   ///< an existing regular file; anything else fails with EISDIR or ENOTSUP
    Create, ///< a file that must not exist yet
    Change, ///< a file, made when it is missing, to be read and written; a link fails with ELOOP
};

/// The calls by which the disk is changed and read: DiskCalls_posix.cpp, DiskCalls_windows.cpp. Tests put
/// calls of their own in their place, to fail or to lose what was not synced.
///
/// What fails says so by -1 or false and leaves the reason in errno. The rest of the program uses OpenFile
/// and DiskFiles.
class Calls {
public:
    virtual ~Calls() = default;

    virtual int open(const std::filesystem::path& path, Purpose purpose);
    virtual bool close(int handle);

    /// Reads or writes up to `size` bytes at the file's position and moves it; gives how many.
    virtual std::ptrdiff_t read(int handle, char* bytes, std::size_t size);
    virtual std::ptrdiff_t write(int handle, const char* bytes, std::size_t size);

    virtual std::intmax_t size(int handle);

    /// Cuts the file to `length` bytes and moves the position there.
    virtual bool cut(int handle, std::uintmax_t length);

    /// Gives a new file the permissions of the file that it is to replace. Fails when that one may not be
    /// written; nothing happens when there is none.
    virtual bool takePermissions(int handle, const std::filesystem::path& replaced);

    /// Gives a file the name of another one, which it replaces at once.
    virtual bool rename(const std::filesystem::path& file, const std::filesystem::path& name);

    /// Removes a file or link, or an empty folder.
    virtual bool remove(const std::filesystem::path& path);

    virtual bool makeFolder(const std::filesystem::path& folder);

    /// Locks the file for this process, until it is closed. Fails with EWOULDBLOCK when another holds it.
    virtual bool lock(int handle);

    /// Returns when what was written is on the disk.
    virtual bool sync(int handle);
    virtual bool syncFile(const std::filesystem::path& file);

    /// Returns when names that were made, changed or removed in the folder are on the disk.
    virtual bool syncFolder(const std::filesystem::path& folder);

    /// A number for the disk that holds the folder, NoDisk when there is no such folder.
    virtual std::uintmax_t diskOf(const std::filesystem::path& folder);
    static constexpr std::uintmax_t NoDisk = UINTMAX_MAX;

    /// Returns when everything written to the disk that holds the folder is on it. Fails with ENOSYS where
    /// the platform has no such call.
    virtual bool syncDiskOf(const std::filesystem::path& folder);
};

/// The calls of this machine.
Calls& systemCalls();

int processId();
std::string hostName();

} // namespace iceline::disk
