#pragma once

#include <filesystem>
#include <memory>

namespace iceline {

/// Holds a league for one program: two at once would lose each other's games. The lock is the operating
/// system's and goes with the process, however that ends; the lock file stays and is harmless.
class LeagueLock {
public:
    static constexpr const char* FileName = "League in use.lock";

    /// Takes the league in `folder`. Throws FileError naming the holder (program, process and since when)
    /// when another program has it, or when the lock file cannot be written.
    LeagueLock(const std::filesystem::path& folder, const char* program);
    ~LeagueLock();
    LeagueLock(const LeagueLock&) = delete;
    LeagueLock& operator=(const LeagueLock&) = delete;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

} // namespace iceline
