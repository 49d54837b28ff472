#pragma once

#include "files/Change.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace iceline {

namespace disk {
class Calls;
}

/// Tries whether changes can be made on the disk, without making them: with temporary files and folders
/// beside the places of the real ones, which go again with the object.
class Trial {
public:
    Trial(disk::Calls& calls, std::filesystem::path root) : calls_(calls), root_(std::move(root)) {}
    ~Trial();
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    /// Throws FileError for the first change that cannot be made.
    void tryOut(const std::vector<Change>& changes);

private:
    void tryOne(const Change& change);
    void makeFolder(const std::string& path);
    void makeFile(const std::string& path);
    void extendFile(const std::string& path);
    void removeFrom(const std::string& folder);
    void requireEmpty(const std::string& folder, const std::vector<Change>& changes) const;

    /// Where things in a folder are tried: in the folder, or in the temporary one where it is to be made.
    std::filesystem::path placeOf(const std::string& folder) const;

    disk::Calls& calls_;
    std::filesystem::path root_;
    std::map<std::string, std::filesystem::path> madeFolders_; ///< by the path of the real folder
};

} // namespace iceline
