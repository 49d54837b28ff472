#include "files/DiskCalls.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace iceline::disk {

namespace {

int flagsFor(Purpose purpose) {
    switch (purpose) {
    case Purpose::Read:
        return O_RDONLY | O_NONBLOCK; // a named pipe must not hold the program up
    case Purpose::Create:
        return O_WRONLY | O_CREAT | O_EXCL;
    case Purpose::Change:
        break;
    }
    return O_RDWR | O_CREAT | O_NOFOLLOW;
}

int failed(int handle, int reason) {
    ::close(handle);
    errno = reason;
    return -1;
}

bool syncNamed(const std::filesystem::path& path, int (*call)(int)) {
    const int handle = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool synced = call(handle) == 0;
    const int reason = errno;
    ::close(handle);
    errno = reason;
    return synced;
}

} // namespace

int Calls::open(const std::filesystem::path& path, Purpose purpose) {
    const int handle = ::open(path.c_str(), flagsFor(purpose) | O_CLOEXEC, 0666);
    if (handle < 0 || purpose != Purpose::Read)
        return handle;
    struct stat status = {};
    if (::fstat(handle, &status) != 0)
        return failed(handle, errno);
    if (S_ISDIR(status.st_mode))
        return failed(handle, EISDIR);
    return S_ISREG(status.st_mode) ? handle : failed(handle, ENOTSUP);
}

bool Calls::close(int handle) {
    return ::close(handle) == 0;
}

std::ptrdiff_t Calls::read(int handle, char* bytes, std::size_t size) {
    return ::read(handle, bytes, size);
}

std::ptrdiff_t Calls::write(int handle, const char* bytes, std::size_t size) {
    return ::write(handle, bytes, size);
}

std::intmax_t Calls::size(int handle) {
    struct stat status = {};
    return ::fstat(handle, &status) == 0 ? status.st_size : -1;
}

bool Calls::cut(int handle, std::uintmax_t length) {
    const auto offset = static_cast<off_t>(length);
    return ::ftruncate(handle, offset) == 0 && ::lseek(handle, offset, SEEK_SET) == offset;
}

bool Calls::takePermissions(int handle, const std::filesystem::path& replaced) {
    struct stat status = {};
    if (::stat(replaced.c_str(), &status) != 0)
        return true;
    return ::faccessat(AT_FDCWD, replaced.c_str(), W_OK, AT_EACCESS) == 0 &&
           ::fchmod(handle, status.st_mode & 0777) == 0;
}

bool Calls::rename(const std::filesystem::path& file, const std::filesystem::path& name) {
    return ::rename(file.c_str(), name.c_str()) == 0;
}

bool Calls::remove(const std::filesystem::path& path) {
    return ::remove(path.c_str()) == 0;
}

bool Calls::makeFolder(const std::filesystem::path& folder) {
    return ::mkdir(folder.c_str(), 0777) == 0;
}

bool Calls::lock(int handle) {
    return ::flock(handle, LOCK_EX | LOCK_NB) == 0;
}

bool Calls::sync(int handle) {
    return ::fsync(handle) == 0;
}

bool Calls::syncFile(const std::filesystem::path& file) {
    return syncNamed(file, ::fsync);
}

bool Calls::syncFolder(const std::filesystem::path& folder) {
    return syncNamed(folder, ::fsync);
}

std::uintmax_t Calls::diskOf(const std::filesystem::path& folder) {
    struct stat status = {};
    return ::stat(folder.c_str(), &status) == 0 ? status.st_dev : NoDisk;
}

bool Calls::syncDiskOf(const std::filesystem::path& folder) {
#ifdef __linux__
    return syncNamed(folder, ::syncfs);
#else
    errno = folder.empty() ? EINVAL : ENOSYS;
    return false;
#endif
}

Calls& systemCalls() {
    static Calls calls;
    return calls;
}

int processId() {
    return ::getpid();
}

std::string hostName() {
    std::array<char, 256> name = {};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "an unnamed machine";
}

} // namespace iceline::disk
