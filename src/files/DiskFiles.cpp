#include "files/DiskFiles.h"

#include "files/DiskError.h"
#include "files/DiskPlace.h"
#include "files/FileError.h"
#include "files/NativePath.h"
#include "files/OpenFile.h"
#include "files/Trial.h"
#include "text/Names.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <system_error>
#include <utility>

namespace iceline {

namespace fs = std::filesystem;
using disk::at;
using disk::OpenFile;
using disk::Purpose;

namespace {

/// From this many unsynced files and folders on, syncing the whole disk is quicker than syncing each.
constexpr std::size_t SyncWholeDiskFrom = 16;

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
    return fromNative(path.filename());
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
    if (size(path) > LargestFile)
        throw FileError::tooLarge(path, LargestFile);
    return readFirst(path, LargestFile);
}

std::string DiskFiles::readFirst(const std::string& path, std::size_t limit) {
    return at(root_, path, disk::Reading,
              [&](const fs::path& file) { return OpenFile(calls_, file, Purpose::Read).read(limit); });
}

bool DiskFiles::holds(const std::string& path, std::string_view content) {
    return at(root_, path, disk::Reading, [&](const fs::path& place) {
        const int handle = calls_.open(place, Purpose::Read);
        return handle >= 0 && OpenFile(calls_, handle).holds(content);
    });
}

void DiskFiles::write(const std::string& path, std::string_view content, Durability durability) {
    at(root_, path, disk::Writing, [&](const fs::path& file) {
        replaceFile(calls_, file, content, durability);
        settle(file, durability);
    });
}

void DiskFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                       Durability durability) {
    at(root_, path, disk::Writing, [&](const fs::path& file) {
        if (fs::is_symlink(fs::symlink_status(file)))
            return replaceLink(file, length, content, durability);
        const bool isNew = !fs::exists(file);
        OpenFile out(calls_, file, Purpose::Change);
        appendAt(out, std::min(length, out.size()), content, durability == Durability::Now);
        out.close();
        if (durability == Durability::Later)
            unsyncedFiles_.insert(file.native());
        if (isNew && durability == Durability::Later)
            unsyncedFolders_.insert(file.parent_path().native());
        if (isNew && durability == Durability::Now)
            syncFolder(file.parent_path());
    });
}

/// A link is not followed: the file takes its place, as in write().
void DiskFiles::replaceLink(const fs::path& link, std::uintmax_t length, std::string_view content,
                            Durability durability) {
    std::string whole = fs::is_regular_file(link) ? OpenFile(calls_, link, Purpose::Read).read(length) : "";
    replaceFile(calls_, link, whole += content, durability);
    settle(link, durability);
}

void DiskFiles::settle(const fs::path& file, Durability durability) {
    if (durability == Durability::Now)
        syncFolder(file.parent_path());
    if (durability != Durability::Later)
        return;
    unsyncedFiles_.insert(file.native());
    unsyncedFolders_.insert(file.parent_path().native());
}

void DiskFiles::remove(const std::string& path) {
    at(root_, path, disk::Removing, [&](const fs::path& file) {
        if (fs::is_directory(file))
            throw std::system_error(std::make_error_code(std::errc::is_a_directory));
        if (!fs::exists(fs::symlink_status(file)))
            return;
        disk::require(calls_.remove(file));
        unsyncedFolders_.insert(file.parent_path().native());
    });
}

void DiskFiles::rename(const std::string& path, const std::string& name) {
    at(root_, path, disk::Renaming, [&](const fs::path& file) {
        const fs::path target = root_ / toNative(name);
        disk::require(calls_.rename(file, target));
        unsyncedFolders_.insert(file.parent_path().native());
        unsyncedFolders_.insert(target.parent_path().native());
    });
}

void DiskFiles::makeFolder(const std::string& path) {
    at(root_, path, disk::MakingFolder, [&](const fs::path& folder) {
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
    at(root_, path, disk::RemovingFolder, [&](const fs::path& folder) {
        if (!fs::exists(folder))
            return;
        for (const auto type : {fs::file_type::regular, fs::file_type::directory})
            for (const std::string& name : namesIn(folder, type))
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
    return at(root_, path, disk::Finding, [](const fs::path& file) { return fs::is_regular_file(file); });
}

bool DiskFiles::isFolder(const std::string& path) {
    return at(root_, path, disk::Finding, [](const fs::path& folder) { return fs::is_directory(folder); });
}

bool DiskFiles::leadsOut(const std::string& path) {
    return at(root_, path, disk::Finding, [&](const fs::path& place) {
        const fs::path root = fs::canonical(root_);
        return std::ranges::mismatch(root, fs::weakly_canonical(place)).in1 != root.end();
    });
}

std::uintmax_t DiskFiles::size(const std::string& path) {
    return at(root_, path, disk::Finding, [](const fs::path& file) -> std::uintmax_t {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(file, error);
        if (!error)
            return size;
        const bool isMissing = error == std::errc::no_such_file_or_directory;
        return !isMissing && fs::is_regular_file(file) ? fs::file_size(file) : 0;
    });
}

std::vector<std::string> DiskFiles::filesIn(const std::string& folder) {
    auto names = at(root_, folder, disk::Listing,
                    [](const fs::path& place) { return namesIn(place, fs::file_type::regular); });
    if (isInLeague(folder))
        std::erase_if(names, isTemporary);
    return names;
}

std::vector<std::string> DiskFiles::foldersIn(const std::string& folder) {
    auto names = at(root_, folder, disk::Listing,
                    [](const fs::path& place) { return namesIn(place, fs::file_type::directory); });
    std::erase_if(names, isTemporary);
    return names;
}

void DiskFiles::tryOut(const std::vector<Change>& changes) {
    Trial(calls_, root_).tryOut(changes);
}

void DiskFiles::syncFolder(const fs::path& folder) {
    if (calls_.syncFolder(folder))
        return;
    const bool unsupported = disk::isUnsupported(errno) || errno == EROFS;
    requireSynced(unsupported);
    if (unsupported)
        limit_ =
            "The disk of " + fromNative(folder) +
            " cannot bring the names of files to the disk at once. After a power cut the last changes may be "
            "missing.";
}

/// Parts of the league may be on other disks. False when the platform cannot sync a whole disk.
bool DiskFiles::syncDisks() {
    std::map<std::uintmax_t, fs::path> folderOfDisk;
    for (const NativePath& folder : unsyncedFolders_)
        folderOfDisk.emplace(calls_.diskOf(folder), folder);
    for (const NativePath& file : unsyncedFiles_) {
        const fs::path folder = fs::path(file).parent_path();
        folderOfDisk.emplace(calls_.diskOf(folder), folder);
    }
    for (const auto& [disk, folder] : folderOfDisk)
        if (disk != disk::Calls::NoDisk && !calls_.syncDiskOf(folder)) {
            disk::require(disk::isUnsupported(errno));
            return false;
        }
    return true;
}

void DiskFiles::sync() {
    at(root_, "", disk::Syncing, [&](const fs::path&) {
        const bool many = unsyncedFiles_.size() + unsyncedFolders_.size() >= SyncWholeDiskFrom;
        if (many && syncDisks())
            return;
        for (const NativePath& file : unsyncedFiles_)
            requireSynced(calls_.syncFile(file));
        for (const NativePath& folder : unsyncedFolders_)
            syncFolder(folder);
    });
    unsyncedFiles_.clear();
    unsyncedFolders_.clear();
}

std::string DiskFiles::takeLimit() {
    std::string limit;
    if (!limitTold_)
        limit.swap(limit_);
    limitTold_ = limitTold_ || !limit.empty();
    return limit;
}

} // namespace iceline
