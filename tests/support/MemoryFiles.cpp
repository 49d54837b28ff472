#include "support/MemoryFiles.h"

#include "store/FileError.h"

#include <algorithm>

namespace iceline::test {

namespace {

std::string parentOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

template <class Paths>
std::vector<std::string> namesIn(const Paths& paths, const std::string& folder) {
    std::vector<std::string> names;
    for (const std::string& path : paths)
        if (parentOf(path) == folder)
            names.push_back(nameOf(path));
    std::ranges::sort(names, nameBefore);
    return names;
}

} // namespace

std::string MemoryFiles::read(const std::string& path) {
    ++reads;
    const auto file = files.find(path);
    if (file == files.end())
        throw FileError(path, isFolder(path) ? "is a folder, not a file" : "the file is missing");
    return file->second;
}

std::string MemoryFiles::readFirst(const std::string& path, std::size_t limit) {
    return read(path).substr(0, limit);
}

void MemoryFiles::write(const std::string& path, std::string_view content, Durability) {
    ++writes;
    if (const std::string folder = parentOf(path); !folder.empty() && !isFolder(folder))
        throw FileError(path, "cannot be written: its folder is missing");
    files[path] = content;
}

void MemoryFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                         Durability) {
    ++writes;
    std::string& file = files[path];
    file.resize(std::min<std::uintmax_t>(length, file.size()));
    file += content;
}

void MemoryFiles::remove(const std::string& path) {
    files.erase(path);
}

void MemoryFiles::makeFolder(const std::string& path) {
    if (path.empty())
        return;
    makeFolder(parentOf(path));
    folders.insert(path);
}

void MemoryFiles::removeFolder(const std::string& path) {
    if (!filesIn(path).empty() || !foldersIn(path).empty())
        throw FileError(path, "cannot be removed: the folder is not empty");
    folders.erase(path);
}

bool MemoryFiles::isFile(const std::string& path) {
    return files.contains(path);
}

bool MemoryFiles::isFolder(const std::string& path) {
    return folders.contains(path);
}

std::uintmax_t MemoryFiles::size(const std::string& path) {
    const auto file = files.find(path);
    return file == files.end() ? 0 : file->second.size();
}

std::vector<std::string> MemoryFiles::filesIn(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& [path, content] : files)
        paths.push_back(path);
    return namesIn(paths, folder);
}

std::vector<std::string> MemoryFiles::foldersIn(const std::string& folder) {
    return namesIn(folders, folder);
}

} // namespace iceline::test
