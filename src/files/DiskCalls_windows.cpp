#include "files/DiskCalls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <share.h>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

namespace iceline::disk {

namespace {

int flagsFor(Purpose purpose) {
    switch (purpose) {
    case Purpose::Read:
        return _O_RDONLY;
    case Purpose::Create:
        return _O_WRONLY | _O_CREAT | _O_EXCL;
    case Purpose::Change:
        break;
    }
    return _O_RDWR | _O_CREAT;
}

unsigned portion(std::size_t size) {
    return static_cast<unsigned>(std::min<std::size_t>(size, INT_MAX));
}

/// Carries out `attempt`, which uses the file and gives false and errno when it cannot. A file that another
/// program has just open, a virus scanner for instance, is denied until that one has done with it.
template <class Attempt>
bool whenFree(const std::filesystem::path& file, Attempt attempt) {
    constexpr int Tries = 100;
    constexpr DWORD PauseInMilliseconds = 10;
    std::error_code ignored;
    for (int tries = 1; !attempt(); ++tries) {
        if (errno != EACCES || tries == Tries || std::filesystem::is_directory(file, ignored))
            return false;
        Sleep(PauseInMilliseconds);
    }
    return true;
}

} // namespace

int Calls::open(const std::filesystem::path& path, Purpose purpose) {
    const int flags = flagsFor(purpose) | _O_BINARY | _O_NOINHERIT;
    std::error_code ignored;
    if (purpose == Purpose::Change && std::filesystem::is_symlink(path, ignored)) {
        errno = ELOOP;
        return -1;
    }
    int handle = -1;
    whenFree(path, [&] {
        handle = _wsopen(path.c_str(), flags, _SH_DENYNO, _S_IREAD | _S_IWRITE);
        return handle >= 0;
    });
    return handle;
}

bool Calls::close(int handle) {
    return _close(handle) == 0;
}

std::ptrdiff_t Calls::read(int handle, char* bytes, std::size_t size) {
    return _read(handle, bytes, portion(size));
}

std::ptrdiff_t Calls::write(int handle, const char* bytes, std::size_t size) {
    return _write(handle, bytes, portion(size));
}

std::intmax_t Calls::size(int handle) {
    return _filelengthi64(handle);
}

bool Calls::cut(int handle, std::uintmax_t length) {
    const auto offset = static_cast<long long>(length);
    return _chsize_s(handle, offset) == 0 && _lseeki64(handle, offset, SEEK_SET) == offset;
}

// A file takes its permissions from its folder here, and one that is marked read-only is not replaced.
bool Calls::takePermissions(int, const std::filesystem::path&) {
    return true;
}

bool Calls::rename(const std::filesystem::path& file, const std::filesystem::path& name) {
    return whenFree(name, [&] {
        std::error_code error;
        std::filesystem::rename(file, name, error);
        errno = error.default_error_condition().value();
        return !error;
    });
}

bool Calls::remove(const std::filesystem::path& path) {
    return whenFree(path, [&] {
        std::error_code error;
        std::filesystem::remove(path, error);
        errno = error.default_error_condition().value();
        return !error;
    });
}

bool Calls::makeFolder(const std::filesystem::path& folder) {
    return _wmkdir(folder.c_str()) == 0;
}

// The locked byte lies far after the text of a lock file, which others may therefore read.
bool Calls::lock(int handle) {
    OVERLAPPED place = {};
    place.Offset = 0x7fffffff;
    if (LockFileEx(reinterpret_cast<HANDLE>(_get_osfhandle(handle)),
                   LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place))
        return true;
    errno = GetLastError() == ERROR_LOCK_VIOLATION ? EWOULDBLOCK : EIO;
    return false;
}

bool Calls::sync(int handle) {
    return _commit(handle) == 0;
}

bool Calls::syncFile(const std::filesystem::path& file) {
    const int handle = _wopen(file.c_str(), _O_RDWR | _O_BINARY);
    if (handle < 0)
        return false;
    const bool synced = sync(handle);
    return close(handle) && synced;
}

// The file system keeps its names by a journal of its own; a folder cannot be synced.
bool Calls::syncFolder(const std::filesystem::path&) {
    return true;
}

// Whole disks are not synced here, so which one it is does not matter.
std::uintmax_t Calls::diskOf(const std::filesystem::path&) {
    return 0;
}

bool Calls::syncDiskOf(const std::filesystem::path&) {
    errno = ENOSYS;
    return false;
}

Calls& systemCalls() {
    static Calls calls;
    return calls;
}

int processId() {
    return _getpid();
}

std::string hostName() {
    std::array<char, MAX_COMPUTERNAME_LENGTH + 1> name = {};
    auto size = static_cast<DWORD>(name.size());
    return GetComputerNameA(name.data(), &size) ? name.data() : "an unnamed machine";
}

} // namespace iceline::disk
