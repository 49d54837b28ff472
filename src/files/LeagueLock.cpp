#include "files/LeagueLock.h"

#include "files/DiskError.h"
#include "files/FileError.h"
#include "files/OpenFile.h"

#include <algorithm>
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

} // namespace

struct LeagueLock::Handle {
    explicit Handle(const std::filesystem::path& path)
        : file(disk::systemCalls(), path, disk::Purpose::Change) {}

    disk::OpenFile file;
};

LeagueLock::LeagueLock(const std::filesystem::path& folder, const char* program) {
    constexpr disk::Task Locking{"the league folder cannot be written", std::filesystem::file_type::regular,
                                 false};
    const std::filesystem::path path = folder / FileName;
    try {
        handle_ = std::make_unique<Handle>(path);
        if (!handle_->file.lock()) {
            const std::string holder = readHolder(handle_->file);
            throw FileError::about(FileName, "the league is in use by " +
                                                 (holder.empty() ? "another program" : holder));
        }
        handle_->file.cut(0);
        handle_->file.write(holderText(program) + "\n");
    } catch (const std::system_error& error) {
        throw FileError::about(FileName, disk::explain(Locking, path, error.code()));
    }
}

LeagueLock::~LeagueLock() {
    handle_->file.tryToCut(0);
}

} // namespace iceline
