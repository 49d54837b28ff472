#include "files/LeagueLock.h"

#include "files/DiskError.h"
#include "files/FileError.h"
#include "files/OpenFile.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <ctime>
#include <iomanip>
#include <sstream>
#include <string>
#include <system_error>

namespace iceline {

namespace {

constexpr std::size_t LongestHolder = 200;

/// "iceline-scorebook (process 123 on HOST since 2026-11-22 20:15)", in local time.
std::string holderText(const char* program) {
    const std::time_t now = std::time(nullptr);
    std::ostringstream text;
    text << program << " (process " << disk::processId() << " on " << disk::hostName() << " since "
         << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M") << ")";
    return text.str();
}

/// The holder as the lock file names it; empty while it is just being written.
std::string readHolder(disk::OpenFile& file) {
    const std::string text = file.read(LongestHolder);
    const auto end = std::ranges::find_if(text, [](unsigned char c) { return std::iscntrl(c) != 0; });
    return {text.begin(), end};
}

/// Whether the disk, and not what is in the lock's place, keeps the lock from being written.
bool isOfDisk(const std::error_code& error) {
    static constexpr std::array reasons{std::errc::read_only_file_system, std::errc::permission_denied,
                                        std::errc::operation_not_permitted, std::errc::no_space_on_device};
    return std::ranges::any_of(reasons, [&](std::errc reason) { return error == reason; });
}

} // namespace

struct LeagueLock::Handle {
    explicit Handle(const std::filesystem::path& path)
        : file(disk::systemCalls(), path, disk::Purpose::Change) {}

    disk::OpenFile file;
};

void LeagueLock::take(const std::filesystem::path& path, const char* program) {
    handle_ = std::make_unique<Handle>(path);
    switch (handle_->file.lock()) {
    case disk::OpenFile::Locked::Yes:
        break;
    case disk::OpenFile::Locked::ByAnother: {
        const std::string holder = readHolder(handle_->file);
        throw FileError::about(FileName,
                               "the league is in use by " + (holder.empty() ? "another program" : holder));
    }
    case disk::OpenFile::Locked::Unsupported:
        warning_ =
            "The disk of the league cannot lock files. Do not open the league with two programs at once.";
        break;
    }
    handle_->file.cut(0);
    handle_->file.write(holderText(program) + "\n");
}

LeagueLock::LeagueLock(const std::filesystem::path& folder, const char* program, For purpose) {
    constexpr disk::Task Locking{"the league folder cannot be written", std::filesystem::file_type::regular,
                                 false};
    const std::filesystem::path path = folder / FileName;
    try {
        take(path, program);
    } catch (const std::system_error& error) {
        canWrite_ = false;
        if (purpose == For::Changing || !isOfDisk(error.code()))
            throw FileError::about(FileName, disk::explain(Locking, path, error.code()));
    }
}

LeagueLock::LeagueLock(LeagueLock&&) noexcept = default;
LeagueLock& LeagueLock::operator=(LeagueLock&&) noexcept = default;

LeagueLock::~LeagueLock() {
    if (handle_)
        handle_->file.tryToCut(0);
}

} // namespace iceline
