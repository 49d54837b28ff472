#include "files/DiskFiles.h"

#include "files/DiskError.h"
#include "files/FileError.h"
#include "files/NativePath.h"
#include "files/OpenFile.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

namespace iceline {

namespace fs = std::filesystem;
using disk::OpenFile;
using disk::Purpose;
using disk::Task;

namespace {

/// From this many unsynced files and folders on, syncing the whole disk is quicker than syncing each.
constexpr std::size_t SyncWholeDiskFrom = 16;

constexpr Task Reading{"cannot be read", fs::file_type::regular, true};
constexpr Task Writing{"cannot be written", fs::file_type::regular, false};
constexpr Task Removing{"cannot be removed", fs::file_type::regular, false};
constexpr Task Listing{"cannot be listed", fs::file_type::directory, true};
constexpr Task MakingFolder{"cannot be made", fs::file_type::directory, false};
constexpr Task RemovingFolder{"cannot be removed", fs::file_type::directory, false};
constexpr Task Finding{"cannot be looked for", fs::file_type::unknown, false};
constexpr Task Syncing{"cannot be brought to the disk", fs::file_type::unknown, false};

/// Carries `action` out on the place of `path`, and turns what goes wrong into a FileError.
template <class Action>
auto at(const fs::path& root, const std::string& path, const Task& task, Action action) {
    refuseOutsideLeague(path);
    fs::path place = root;
    try {
        if (!path.empty())
            place /= toNative(path);
        return action(place);
    } catch (const std::system_error& error) {
        throw FileError::about(path.empty() ? root.string() : path, disk::explain(task, place, error.code()));
    }
}

/// A file is written beside its place and then moved there, so that nobody finds a part of it. One that is
/// new and need not outlast a power cut goes into its place at once, since nothing can be lost there.
void replaceFile(disk::Calls& calls, const fs::path& file, std::string_view content, Durability durability) {
    const bool synced = durability == Durability::Now;
    const bool inPlace = durability == Durability::Unsynced && !fs::exists(fs::symlink_status(file));
    fs::path fresh = file;
    if (!inPlace)
        fresh += DiskFiles::TemporarySuffix;
    try {
        OpenFile out(calls, fresh, Purpose::Create);
        if (!inPlace)
            out.takePermissions(file);
        out.write(content);
        if (synced)
            out.sync();
        out.close();
        if (!inPlace)
            disk::require(calls.rename(fresh, file));
    } catch (const std::system_error&) {
        calls.remove(fresh);
        throw;
    }
    if (synced)
        disk::require(calls.syncFolder(file.parent_path()));
}

void appendAt(OpenFile& file, std::uintmax_t length, std::string_view content, bool synced) {
    try {
        file.cut(length);
        file.write(content);
        if (synced)
            file.sync();
    } catch (const std::system_error&) {
        file.tryToCut(length);
        throw;
    }
}

std::string nameOf(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return {name.begin(), name.end()};
}

bool isTemporary(const std::string& name) {
    return name.ends_with(DiskFiles::TemporarySuffix);
}

std::vector<std::string> namesIn(const fs::path& folder, fs::file_type type) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.status().type() == type)
            names.push_back(nameOf(entry.path()));
    std::ranges::sort(names, nameBefore);
    return names;
}

/// What is no longer there needs no syncing.
void requireSynced(bool synced) {
    disk::require(synced || errno == ENOENT || errno == ENOTDIR);
}

} // namespace

DiskFiles::DiskFiles(fs::path root) : DiskFiles(std::move(root), disk::systemCalls()) {}

DiskFiles::DiskFiles(fs::path root, disk::Calls& calls) : root_(std::move(root)), calls_(calls) {}

std::string DiskFiles::read(const std::string& path) {
    return readFirst(path, std::numeric_limits<std::size_t>::max());
}

std::string DiskFiles::readFirst(const std::string& path, std::size_t limit) {
    return at(root_, path, Reading,
              [&](const fs::path& file) { return OpenFile(calls_, file, Purpose::Read).read(limit); });
}

bool DiskFiles::holds(const std::string& path, std::string_view content) {
    return at(root_, path, Reading, [&](const fs::path& place) {
        const int handle = calls_.open(place, Purpose::Read);
        return handle >= 0 && OpenFile(calls_, handle).holds(content);
    });
}

void DiskFiles::write(const std::string& path, std::string_view content, Durability durability) {
    at(root_, path, Writing, [&](const fs::path& file) {
        replaceFile(calls_, file, content, durability);
        if (durability != Durability::Later)
            return;
        unsyncedFiles_.insert(file.native());
        unsyncedFolders_.insert(file.parent_path().native());
    });
}

void DiskFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                       Durability durability) {
    at(root_, path, Writing, [&](const fs::path& file) {
        const bool isNew = !fs::exists(file);
        OpenFile out(calls_, file, Purpose::Change);
        appendAt(out, std::min(length, out.size()), content, durability == Durability::Now);
        out.close();
        if (durability == Durability::Later)
            unsyncedFiles_.insert(file.native());
        if (isNew && durability == Durability::Later)
            unsyncedFolders_.insert(file.parent_path().native());
        if (isNew && durability == Durability::Now)
            disk::require(calls_.syncFolder(file.parent_path()));
    });
}

void DiskFiles::remove(const std::string& path) {
    at(root_, path, Removing, [&](const fs::path& file) {
        if (fs::is_directory(file))
            throw std::system_error(std::make_error_code(std::errc::is_a_directory));
        if (!fs::exists(fs::symlink_status(file)))
            return;
        disk::require(calls_.remove(file));
        unsyncedFolders_.insert(file.parent_path().native());
    });
}

void DiskFiles::makeFolder(const std::string& path) {
    at(root_, path, MakingFolder, [&](const fs::path& folder) {
        std::vector<fs::path> missing;
        for (fs::path above = folder; !fs::is_directory(above); above = above.parent_path())
            missing.push_back(above);
        for (; !missing.empty(); missing.pop_back()) {
            disk::require(calls_.makeFolder(missing.back()));
            unsyncedFolders_.insert(missing.back().parent_path().native());
        }
    });
}

void DiskFiles::removeFolder(const std::string& path) {
    at(root_, path, RemovingFolder, [&](const fs::path& folder) {
        if (!fs::exists(folder))
            return;
        for (const std::string& name : namesIn(folder, fs::file_type::regular))
            if (isTemporary(name))
                disk::require(calls_.remove(folder / toNative(name)));
        // Windows' own refusal is lost: the library then tries to remove the folder as a file.
        if (!fs::is_empty(folder))
            throw std::system_error(std::make_error_code(std::errc::directory_not_empty));
        disk::require(calls_.remove(folder));
        unsyncedFolders_.insert(folder.parent_path().native());
    });
}

bool DiskFiles::isFile(const std::string& path) {
    return at(root_, path, Finding, [](const fs::path& file) { return fs::is_regular_file(file); });
}

bool DiskFiles::isFolder(const std::string& path) {
    return at(root_, path, Finding, [](const fs::path& folder) { return fs::is_directory(folder); });
}

std::uintmax_t DiskFiles::size(const std::string& path) {
    return at(root_, path, Finding, [](const fs::path& file) -> std::uintmax_t {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(file, error);
        if (!error)
            return size;
        const bool isMissing = error == std::errc::no_such_file_or_directory;
        return !isMissing && fs::is_regular_file(file) ? fs::file_size(file) : 0;
    });
}

std::vector<std::string> DiskFiles::filesIn(const std::string& folder) {
    auto names = at(root_, folder, Listing,
                    [](const fs::path& place) { return namesIn(place, fs::file_type::regular); });
    std::erase_if(names, isTemporary);
    return names;
}

std::vector<std::string> DiskFiles::foldersIn(const std::string& folder) {
    return at(root_, folder, Listing,
              [](const fs::path& place) { return namesIn(place, fs::file_type::directory); });
}

void DiskFiles::sync() {
    at(root_, "", Syncing, [&](const fs::path& root) {
        const bool many = unsyncedFiles_.size() + unsyncedFolders_.size() >= SyncWholeDiskFrom;
        const bool wholeDisk = many && calls_.syncDiskOf(root);
        disk::require(wholeDisk || !many || errno == ENOSYS);
        if (!wholeDisk) {
            for (const NativePath& file : unsyncedFiles_)
                requireSynced(calls_.syncFile(file));
            for (const NativePath& folder : unsyncedFolders_)
                requireSynced(calls_.syncFolder(folder));
        }
    });
    unsyncedFiles_.clear();
    unsyncedFolders_.clear();
}

} // namespace iceline
