#include "support/MemoryFiles.h"

#include "files/FileError.h"
#include "text/Names.h"

#include <algorithm>

namespace iceline::test {

namespace {

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

template <class Paths>
std::vector<std::string> namesIn(const Paths& paths, const std::string& folder) {
    std::vector<std::string> names;
    for (const std::string& path : paths)
        if (!path.empty() && folderOf(path) == folder)
            names.push_back(nameOf(path));
    std::ranges::sort(names, nameBefore);
    return names;
}

} // namespace

void MemoryFiles::requirePlaceForFile(const std::string& path) {
    refuseOutsideLeague(path);
    if (isFolder(path))
        throw FileError::isFolder(path);
    if (!isFolder(folderOf(path)))
        throw FileError::cannotWrite(path, "its folder is missing");
}

void MemoryFiles::requireFolder(const std::string& path) {
    if (!isFolder(path))
        throw isFile(path) ? FileError::isFile(path) : FileError::missingFolder(path);
}

std::string MemoryFiles::read(const std::string& path) {
    ++reads;
    refuseOutsideLeague(path);
    const auto file = files.find(path);
    if (file == files.end())
        throw isFolder(path) ? FileError::isFolder(path) : FileError::missing(path);
    return file->second;
}

std::string MemoryFiles::readFirst(const std::string& path, std::size_t limit) {
    return read(path).substr(0, limit);
}

void MemoryFiles::write(const std::string& path, std::string_view content, Durability) {
    ++writes;
    requirePlaceForFile(path);
    files[path] = content;
}

void MemoryFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                         Durability) {
    ++writes;
    requirePlaceForFile(path);
    std::string& file = files[path];
    file.resize(std::min<std::uintmax_t>(length, file.size()));
    file += content;
}

void MemoryFiles::remove(const std::string& path) {
    refuseOutsideLeague(path);
    if (isFolder(path))
        throw FileError::isFolder(path);
    files.erase(path);
}

void MemoryFiles::rename(const std::string& path, const std::string& name) {
    if (!isFolder(path))
        return Files::rename(path, name);
    const auto renamed = [&](const std::string& of) { return name + of.substr(path.size()); };
    const auto isIn = [&](const std::string& of) { return of == path || of.starts_with(path + "/"); };
    std::set<std::string> folderNames;
    for (const std::string& folder : folders)
        folderNames.insert(isIn(folder) ? renamed(folder) : folder);
    folders = std::move(folderNames);
    std::map<std::string, std::string> kept;
    for (auto& [file, content] : files)
        kept[isIn(file) ? renamed(file) : file] = std::move(content);
    files = std::move(kept);
}

void MemoryFiles::makeFolder(const std::string& path) {
    refuseOutsideLeague(path);
    if (isFolder(path))
        return;
    if (isFile(path))
        throw FileError::isFile(path);
    makeFolder(folderOf(path));
    folders.insert(path);
}

void MemoryFiles::removeFolder(const std::string& path) {
    if (isFile(path))
        throw FileError::isFile(path);
    if (!isFolder(path))
        return;
    if (!filesIn(path).empty() || !foldersIn(path).empty())
        throw FileError::cannotRemove(path, "the folder is not empty");
    folders.erase(path);
}

bool MemoryFiles::isFile(const std::string& path) {
    refuseOutsideLeague(path);
    return files.contains(path);
}

bool MemoryFiles::isFolder(const std::string& path) {
    refuseOutsideLeague(path);
    return path.empty() || folders.contains(path);
}

std::uintmax_t MemoryFiles::size(const std::string& path) {
    refuseOutsideLeague(path);
    const auto file = files.find(path);
    return file == files.end() ? 0 : file->second.size();
}

std::vector<std::string> MemoryFiles::filesIn(const std::string& folder) {
    requireFolder(folder);
    std::vector<std::string> paths;
    for (const auto& [path, content] : files)
        paths.push_back(path);
    return namesIn(paths, folder);
}

std::vector<std::string> MemoryFiles::foldersIn(const std::string& folder) {
    requireFolder(folder);
    return namesIn(folders, folder);
}

void MemoryFiles::copyTo(Files& target) const {
    for (const std::string& folder : folders)
        target.makeFolder(folder);
    for (const auto& [path, content] : files)
        target.write(path, content, Durability::Unsynced);
}

} // namespace iceline::test
