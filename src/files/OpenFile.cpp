#include "files/OpenFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace iceline::disk {

void require(bool done) {
    if (!done)
        throw std::system_error(errno, std::generic_category());
}

/// Some systems have one number for ENOTSUP and EOPNOTSUPP, some have two.
bool isUnsupported(int reason) {
    return std::ranges::count(std::array{EINVAL, ENOTSUP, EOPNOTSUPP, ENOSYS}, reason) != 0;
}

OpenFile::OpenFile(Calls& calls, const std::filesystem::path& path, Purpose purpose)
    : calls_(calls), handle_(calls.open(path, purpose)) {
    if (handle_ < 0 && errno == EEXIST && purpose == Purpose::Create) {
        require(calls_.remove(path));
        handle_ = calls_.open(path, purpose);
    }
    require(handle_ >= 0);
}

OpenFile::~OpenFile() {
    tryToClose();
}

void OpenFile::tryToClose() noexcept {
    if (handle_ >= 0)
        calls_.close(std::exchange(handle_, -1));
}

std::uintmax_t OpenFile::size() const {
    const std::intmax_t size = calls_.size(handle_);
    require(size >= 0);
    return static_cast<std::uintmax_t>(size);
}

std::size_t OpenFile::readSome(char* bytes, std::size_t size) {
    for (;;) {
        const std::ptrdiff_t count = calls_.read(handle_, bytes, size);
        if (count < 0 && errno == EINTR)
            continue;
        require(count >= 0);
        return static_cast<std::size_t>(count);
    }
}

std::string OpenFile::read(std::size_t limit) {
    std::string content(std::min<std::uintmax_t>(limit, size()), '\0');
    std::size_t length = 0;
    while (length < content.size()) {
        const std::size_t count = readSome(content.data() + length, content.size() - length);
        if (count == 0)
            break;
        length += count;
    }
    content.resize(length);
    return content;
}

bool OpenFile::holds(std::string_view content) {
    std::array<char, 16384> part;
    for (;;) {
        const std::size_t count = readSome(part.data(), part.size());
        if (!content.starts_with(std::string_view(part.data(), count)))
            return false;
        content.remove_prefix(count);
        if (count < part.size())
            return content.empty(); // a file gives less than asked for at its end alone
    }
}

void OpenFile::write(std::string_view content) {
    while (!content.empty()) {
        const std::ptrdiff_t count = calls_.write(handle_, content.data(), content.size());
        if (count < 0 && errno == EINTR)
            continue;
        require(count >= 0);
        content.remove_prefix(static_cast<std::size_t>(count));
    }
}

void OpenFile::cut(std::uintmax_t length) {
    require(tryToCut(length));
}

bool OpenFile::tryToCut(std::uintmax_t length) noexcept {
    return calls_.cut(handle_, length);
}

void OpenFile::takePermissions(const std::filesystem::path& replaced) {
    require(calls_.takePermissions(handle_, replaced));
}

void OpenFile::sync() {
    require(calls_.sync(handle_));
}

OpenFile::Locked OpenFile::lock() {
    if (calls_.lock(handle_))
        return Locked::Yes;
    if (errno == EWOULDBLOCK)
        return Locked::ByAnother;
    require(isUnsupported(errno) || errno == ENOLCK);
    return Locked::Unsupported;
}

void OpenFile::close() {
    require(calls_.close(std::exchange(handle_, -1)));
}

} // namespace iceline::disk
