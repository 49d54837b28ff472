#include "files/FileTree.h"

namespace iceline {

namespace {

void addFiles(std::vector<std::string>& paths, Files& files, const std::string& folder,
              const std::string& prefix) {
    for (const std::string& name : files.filesIn(folder))
        paths.push_back(prefix + name);
    for (const std::string& name : files.foldersIn(folder))
        addFiles(paths, files, folder + "/" + name, prefix + name + "/");
}

} // namespace

std::vector<std::string> filesUnder(Files& files, const std::string& folder) {
    std::vector<std::string> paths;
    if (files.isFolder(folder))
        addFiles(paths, files, folder, "");
    return paths;
}

void removeTree(Files& files, const std::string& folder) {
    if (!files.isFolder(folder))
        return;
    for (const std::string& name : files.filesIn(folder))
        files.remove(folder + "/" + name);
    for (const std::string& name : files.foldersIn(folder))
        removeTree(files, folder + "/" + name);
    files.removeFolder(folder);
}

void removeWhenEmpty(Files& files, const std::string& folder) {
    if (files.isFolder(folder) && files.filesIn(folder).empty() && files.foldersIn(folder).empty())
        files.removeFolder(folder);
}

} // namespace iceline
