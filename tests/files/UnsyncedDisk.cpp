#include "files/UnsyncedDisk.h"

#include "files/DiskFiles.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace iceline::test {

using disk::Purpose;

void UnsyncedDisk::begin(const MemoryFiles& files) {
    now_.folders = files.folders;
    for (const auto& [path, content] : files.files)
        now_.files[path] = std::make_shared<Content>(content, content);
    synced_ = now_;
    made.clear();
    syncs = 0;
}

UnsyncedDisk::Names UnsyncedDisk::namesAfterPowerCut(Leaves::Names left) const {
    Names names = left == Leaves::Names::All ? now_ : synced_;
    if (left == Leaves::Names::Gone) {
        std::erase_if(names.files, [this](const auto& file) { return !now_.files.contains(file.first); });
        std::erase_if(names.folders, [this](const auto& folder) { return !now_.folders.contains(folder); });
    }
    if (left == Leaves::Names::InFolders) {
        std::erase_if(names.files, [](const auto& file) { return !folderOf(file.first).empty(); });
        std::ranges::copy_if(now_.files, std::inserter(names.files, names.files.end()),
                             [](const auto& file) { return !folderOf(file.first).empty(); });
    }
    return names;
}

MemoryFiles UnsyncedDisk::afterPowerCut(Leaves leaves) const {
    const Names names = namesAfterPowerCut(leaves.names);
    MemoryFiles found;
    for (const std::string& folder : names.folders)
        if (found.isFolder(folderOf(folder)) && !folder.ends_with(DiskFiles::TemporarySuffix))
            found.folders.insert(folder);
    for (const auto& [path, content] : names.files)
        if (found.isFolder(folderOf(path)) && !path.ends_with(DiskFiles::TemporarySuffix))
            found.files[path] = leaves.contents ? content->now : content->synced;
    return found;
}

std::string UnsyncedDisk::nameOf(const std::filesystem::path& path) const {
    const std::string name = path.lexically_relative(root_).generic_string();
    return name == "." ? "" : name;
}

void UnsyncedDisk::note(const std::string& change) {
    beforeChange();
    made.push_back(change);
}

bool UnsyncedDisk::countSync(const std::string& what) {
    note("sync " + what);
    if (++syncs != skipped_)
        return true;
    skipped = what;
    return false;
}

int UnsyncedDisk::open(const std::filesystem::path& path, Purpose purpose) {
    const std::string name = nameOf(path);
    if (purpose != Purpose::Read && !now_.files.contains(name))
        note("make " + name);
    const int handle = Calls::open(path, purpose);
    if (handle < 0 || purpose == Purpose::Read)
        return handle;
    auto& content = now_.files[name];
    if (!content)
        content = std::make_shared<Content>();
    opened_[handle] = {name, content, 0};
    return handle;
}

std::ptrdiff_t UnsyncedDisk::write(int handle, const char* bytes, std::size_t size) {
    Opened& file = opened_.at(handle);
    note("write " + file.path);
    file.content->now.replace(file.position, size, bytes, size);
    file.position += size;
    return Calls::write(handle, bytes, size);
}

bool UnsyncedDisk::cut(int handle, std::uintmax_t length) {
    Opened& file = opened_.at(handle);
    if (length < file.content->now.size()) {
        note("cut " + file.path);
        file.content->now.resize(length);
    }
    file.position = length;
    return Calls::cut(handle, length);
}

bool UnsyncedDisk::rename(const std::filesystem::path& file, const std::filesystem::path& name) {
    note("rename " + nameOf(file));
    now_.files[nameOf(name)] = now_.files.at(nameOf(file));
    now_.files.erase(nameOf(file));
    return Calls::rename(file, name);
}

bool UnsyncedDisk::remove(const std::filesystem::path& path) {
    note("remove " + nameOf(path));
    now_.files.erase(nameOf(path));
    now_.folders.erase(nameOf(path));
    return Calls::remove(path);
}

bool UnsyncedDisk::makeFolder(const std::filesystem::path& folder) {
    note("make folder " + nameOf(folder));
    now_.folders.insert(nameOf(folder));
    return Calls::makeFolder(folder);
}

bool UnsyncedDisk::sync(int handle) {
    const Opened& file = opened_.at(handle);
    if (countSync(file.path))
        file.content->synced = file.content->now;
    return true;
}

bool UnsyncedDisk::syncFile(const std::filesystem::path& file) {
    const auto found = now_.files.find(nameOf(file));
    if (found == now_.files.end()) {
        errno = ENOENT;
        return false;
    }
    if (countSync(nameOf(file)))
        found->second->synced = found->second->now;
    return true;
}

void UnsyncedDisk::syncNamesIn(const std::string& folder) {
    const auto isHere = [&folder](const std::string& name) { return folderOf(name) == folder; };
    std::erase_if(synced_.files, [&](const auto& file) { return isHere(file.first); });
    std::erase_if(synced_.folders, isHere);
    for (const auto& file : now_.files)
        if (isHere(file.first))
            synced_.files.insert(file);
    for (const std::string& name : now_.folders)
        if (isHere(name))
            synced_.folders.insert(name);
}

bool UnsyncedDisk::syncFolder(const std::filesystem::path& folder) {
    if (folder != root_ && !now_.folders.contains(nameOf(folder))) {
        errno = ENOENT;
        return false;
    }
    if (countSync("folder " + nameOf(folder)))
        syncNamesIn(nameOf(folder));
    return true;
}

bool UnsyncedDisk::syncDiskOf(const std::filesystem::path&) {
    if (!countSync("disk"))
        return true;
    synced_ = now_;
    for (const auto& [path, content] : now_.files)
        content->synced = content->now;
    return true;
}

} // namespace iceline::test
