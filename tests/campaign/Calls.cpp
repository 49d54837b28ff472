/// The calls of the system that the shim takes the place of.
#include "Shim.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace shim;

std::string hex(const char* bytes, std::size_t size) {
    constexpr const char* Digits = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < size; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        text += {Digits[byte / 16], Digits[byte % 16]};
    }
    return text;
}

template <class Function>
Function* systemsOwn(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int openAt(int folder, const char* path, int flags, mode_t mode) {
    static const auto own = systemsOwn<int(int, const char*, int, ...)>("openat");
    const std::string name = inRoot(path);
    const bool writes = (flags & (O_WRONLY | O_RDWR)) != 0;
    if (name.empty())
        return own(folder, path, flags, mode);
    if (fails(writes ? OpenToWrite : OpenToRead))
        return -1;
    const bool isNew = writes && ::access(path, F_OK) != 0;
    if (isNew)
        dieIfDue();
    const int handle = own(folder, path, flags, mode);
    if (handle < 0)
        return handle;
    opened(handle, name);
    if (isNew)
        note("make\t" + name);
    note("open\t" + std::to_string(handle) + "\t" + name);
    return handle;
}

/// A call about a path, or two, that changes names.
template <class Action>
int changeName(const char* path, const std::string& line, Action action) {
    if (inRoot(path).empty())
        return action();
    if (fails(Name))
        return -1;
    dieIfDue();
    const int result = action();
    if (result == 0)
        note(line);
    return result;
}

template <class Action>
int look(const std::string& name, Call call, Action action) {
    return !name.empty() && fails(call) ? -1 : action();
}

template <class Action>
int syncOf(int handle, const std::string& line, Action action) {
    if (pathOf(handle).empty())
        return action();
    if (fails(Sync))
        return -1;
    dieIfDue();
    if (takesSync())
        note(line);
    return 0; // what was not synced is lost in the replay, and nowhere else
}

} // namespace

extern "C" {

/// The time of day stands still, so that the same operation leaves the same bytes.
int clock_gettime(clockid_t clock, timespec* time) noexcept {
    if (clock != CLOCK_REALTIME)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = {1'800'000'000, 0};
    return 0;
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(folder, path, flags, mode);
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(AT_FDCWD, path, flags, mode);
}

int close(int handle) {
    static const auto own = systemsOwn<int(int)>("close");
    const bool failsNow = !pathOf(handle).empty() && fails(Close);
    closed(handle);
    const int result = own(handle);
    if (failsNow)
        errno = EIO;
    return failsNow ? -1 : result;
}

ssize_t read(int handle, void* bytes, size_t size) {
    static const auto own = systemsOwn<ssize_t(int, void*, size_t)>("read");
    return !pathOf(handle).empty() && fails(Read) ? -1 : own(handle, bytes, size);
}

ssize_t write(int handle, const void* bytes, size_t size) {
    static const auto own = systemsOwn<ssize_t(int, const void*, size_t)>("write");
    if (pathOf(handle).empty())
        return own(handle, bytes, size);
    if (fails(Write)) {
        if (errno != 0)
            return -1;
        size = (size + 1) / 2;
    }
    if (diesNow()) {
        own(handle, bytes, size / 2);
        std::raise(SIGKILL);
    }
    const std::string at = std::to_string(::lseek(handle, 0, SEEK_CUR));
    const ssize_t written = own(handle, bytes, size);
    if (written > 0)
        note("write\t" + std::to_string(handle) + "\t" + at + "\t" +
             hex(static_cast<const char*>(bytes), static_cast<std::size_t>(written)));
    return written;
}

int ftruncate(int handle, off_t length) {
    static const auto own = systemsOwn<int(int, off_t)>("ftruncate");
    if (pathOf(handle).empty())
        return own(handle, length);
    if (fails(Write) && errno != 0)
        return -1;
    dieIfDue();
    const int result = own(handle, length);
    if (result == 0)
        note("cut\t" + std::to_string(handle) + "\t" + std::to_string(length));
    return result;
}

int rename(const char* from, const char* to) {
    static const auto own = systemsOwn<int(const char*, const char*)>("rename");
    return changeName(from, "rename\t" + inRoot(from) + "\t" + inRoot(to), [&] { return own(from, to); });
}

int remove(const char* path) {
    static const auto own = systemsOwn<int(const char*)>("remove");
    return changeName(path, "remove\t" + inRoot(path), [&] { return own(path); });
}

int mkdir(const char* path, mode_t mode) {
    static const auto own = systemsOwn<int(const char*, mode_t)>("mkdir");
    return changeName(path, "folder\t" + inRoot(path), [&] { return own(path, mode); });
}

int fsync(int handle) {
    static const auto own = systemsOwn<int(int)>("fsync");
    return syncOf(handle, "sync\t" + pathOf(handle) + "\t" + std::to_string(handle),
                  [&] { return own(handle); });
}

int syncfs(int handle) {
    static const auto own = systemsOwn<int(int)>("syncfs");
    return syncOf(handle, "syncall", [&] { return own(handle); });
}

int stat(const char* path, struct stat* status) {
    static const auto own = systemsOwn<int(const char*, struct stat*)>("stat");
    return look(inRoot(path), Look, [&] { return own(path, status); });
}

int lstat(const char* path, struct stat* status) {
    static const auto own = systemsOwn<int(const char*, struct stat*)>("lstat");
    return look(inRoot(path), Look, [&] { return own(path, status); });
}

int fstat(int handle, struct stat* status) {
    static const auto own = systemsOwn<int(int, struct stat*)>("fstat");
    return look(pathOf(handle), Read, [&] { return own(handle, status); });
}

int faccessat(int folder, const char* path, int mode, int flags) {
    static const auto own = systemsOwn<int(int, const char*, int, int)>("faccessat");
    return look(inRoot(path), Look, [&] { return own(folder, path, mode, flags); });
}

int fchmod(int handle, mode_t mode) {
    static const auto own = systemsOwn<int(int, mode_t)>("fchmod");
    return look(pathOf(handle), Name, [&] { return own(handle, mode); });
}

dirent* readdir(DIR* folder) {
    static const auto own = systemsOwn<dirent*(DIR*)>("readdir");
    return !pathOf(dirfd(folder)).empty() && fails(Read) ? nullptr : own(folder);
}

} // extern "C"
