#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace iceline {

/// Holds a league for one program: two at once would lose each other's games. The lock is the operating
/// system's and goes with the process, however that ends; the lock file stays and is harmless.
class LeagueLock {
public:
    static constexpr const char* FileName = "League in use.lock";

    /// What the program means to do. Who only looks needs no lock where the folder cannot be written.
    enum class For { Changing, Looking };

    /// Takes the league in `folder`. Throws FileError naming the holder (program, process and since when)
    /// when another program has it, or when the lock file cannot be written and the league is to be changed.
    LeagueLock(const std::filesystem::path& folder, const char* program, For purpose = For::Changing);
    ~LeagueLock();
    LeagueLock(LeagueLock&&) noexcept;
    LeagueLock& operator=(LeagueLock&&) noexcept;

    /// False when the league folder cannot be written, so that nothing may be changed.
    bool canWrite() const { return canWrite_; }

    /// What the user should know of the lock: that the disk cannot lock. Empty when all is well.
    const std::string& warning() const { return warning_; }

private:
    struct Handle;

    void take(const std::filesystem::path& path, const char* program);

    std::unique_ptr<Handle> handle_;
    bool canWrite_ = true;
    std::string warning_;
};

} // namespace iceline
