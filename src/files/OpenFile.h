#pragma once

#include "files/DiskCalls.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace iceline::disk {

/// A file of the disk while it is open. What cannot be done throws std::system_error.
class OpenFile {
public:
    /// With Purpose::Create, what is in the file's place is removed first.
    OpenFile(Calls& calls, const std::filesystem::path& path, Purpose purpose);

    /// Takes over what Calls::open() has given.
    OpenFile(Calls& calls, int handle) : calls_(calls), handle_(handle) {}

    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::uintmax_t size() const;

    /// What follows the file's position, at most `limit` bytes.
    std::string read(std::size_t limit);

    /// Whether exactly this follows the file's position.
    bool holds(std::string_view content);

    /// Writes all of `content` at the file's position.
    void write(std::string_view content);

    /// Cuts the file to `length` bytes; what is written next follows them.
    void cut(std::uintmax_t length);
    bool tryToCut(std::uintmax_t length) noexcept;

    void takePermissions(const std::filesystem::path& replaced);
    void sync();

    /// Locks the file until it is closed, unless another process has done so or the disk cannot lock.
    enum class Locked { Yes, ByAnother, Unsupported };
    Locked lock();

    /// Closes the file; what was written may fail only here. The destructor closes without a word.
    void close();
    void tryToClose() noexcept;

private:
    /// Reads up to `size` bytes, 0 at the end of the file.
    std::size_t readSome(char* bytes, std::size_t size);

    Calls& calls_;
    int handle_;
};

/// Whether an errno says that the disk has no such call.
bool isUnsupported(int reason);

/// Throws std::system_error with what errno says, unless `done`.
void require(bool done);

} // namespace iceline::disk
