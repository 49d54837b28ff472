#include "files/Trial.h"

#include "files/DiskFiles.h"
#include "files/DiskPlace.h"
#include "files/OpenFile.h"

#include <algorithm>

namespace iceline {

namespace fs = std::filesystem;
using disk::OpenFile;
using disk::Purpose;
using Kind = Change::Kind;

namespace {

fs::path temporary(fs::path place) {
    return place += DiskFiles::TemporarySuffix;
}

/// A file that is there until the end of its block.
class TrialFile {
public:
    TrialFile(disk::Calls& calls, const fs::path& place)
        : file(calls, place, Purpose::Create), calls_(calls), place_(place) {}
    ~TrialFile() {
        file.tryToClose();
        calls_.remove(place_);
    }
    TrialFile(const TrialFile&) = delete;
    TrialFile& operator=(const TrialFile&) = delete;

    OpenFile file;

private:
    disk::Calls& calls_;
    fs::path place_;
};

const disk::Task& taskOf(Kind kind) {
    switch (kind) {
    case Kind::MakeFolder:
        return disk::MakingFolder;
    case Kind::Remove:
        return disk::Removing;
    case Kind::RemoveFolder:
        return disk::RemovingFolder;
    case Kind::RenameFolder:
        return disk::RenamingFolder;
    case Kind::Write:
    case Kind::Extend:
        break;
    }
    return disk::Writing;
}

} // namespace

Trial::~Trial() {
    for (auto made = madeFolders_.rbegin(); made != madeFolders_.rend(); ++made)
        calls_.remove(made->second);
}

void Trial::tryOut(const std::vector<Change>& changes) {
    for (const Change& change : changes) {
        disk::at(root_, change.path, taskOf(change.kind), [&](const fs::path&) { tryOne(change); });
        if (change.kind == Kind::RemoveFolder)
            requireEmpty(change.path, changes);
    }
}

void Trial::tryOne(const Change& change) {
    switch (change.kind) {
    case Kind::MakeFolder:
        return makeFolder(change.path);
    case Kind::Write:
        return makeFile(change.path);
    case Kind::Extend:
        return extendFile(change.path);
    case Kind::Remove:
    case Kind::RemoveFolder:
        return removeFrom(folderOf(change.path));
    case Kind::RenameFolder:
        removeFrom(folderOf(change.path));
        return makeFolder(change.content);
    }
}

fs::path Trial::placeOf(const std::string& folder) const {
    const auto made = madeFolders_.find(folder);
    if (made != madeFolders_.end())
        return made->second;
    return folder.empty() ? root_ : root_ / toNative(folder);
}

void Trial::makeFolder(const std::string& path) {
    const fs::path real = root_ / toNative(path);
    if (fs::is_directory(real))
        return;
    if (fs::exists(fs::symlink_status(real)))
        throw std::system_error(std::make_error_code(std::errc::file_exists));
    const fs::path place = temporary(placeOf(folderOf(path)) / real.filename());
    disk::require(fs::is_directory(place) || calls_.makeFolder(place));
    madeFolders_[path] = place;
}

void Trial::makeFile(const std::string& path) {
    const fs::path real = root_ / toNative(path);
    if (fs::is_directory(fs::symlink_status(real)))
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    TrialFile trial(calls_, temporary(placeOf(folderOf(path)) / real.filename()));
    trial.file.takePermissions(real);
}

void Trial::extendFile(const std::string& path) {
    const fs::path real = root_ / toNative(path);
    if (fs::is_regular_file(fs::symlink_status(real)))
        OpenFile(calls_, real, Purpose::Change).close();
    else
        makeFile(path);
}

/// Who may make a file in a folder may remove one there.
void Trial::removeFrom(const std::string& folder) {
    const TrialFile trial(calls_, temporary(placeOf(folder) / "trial"));
}

void Trial::requireEmpty(const std::string& folder, const std::vector<Change>& changes) const {
    disk::at(root_, folder, disk::RemovingFolder, [&](const fs::path& place) {
        if (!fs::is_directory(place))
            return;
        for (const fs::directory_entry& entry : fs::directory_iterator(place)) {
            const std::string name = fromNative(entry.path().filename());
            const std::string path = folder + "/" + name;
            const bool goes = std::ranges::any_of(changes, [&](const Change& change) {
                return change.path == path &&
                       (change.kind == Kind::Remove || change.kind == Kind::RemoveFolder);
            });
            if (!goes && !name.ends_with(DiskFiles::TemporarySuffix))
                throw FileError::cannotRemove(folder, "it still holds \"" + name + "\"");
        }
    });
}

} // namespace iceline
