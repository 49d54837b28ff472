#pragma once

#include "files/Files.h"

#include <filesystem>
#include <unordered_set>

namespace iceline {

namespace disk {
class Calls;
}

/// The files of the disk, under one folder.
///
/// A file is replaced by writing a temporary file beside it, checking every write, syncing it
/// (Durability::Now), renaming it over the old one and syncing the folder, so that neither a full disk nor a
/// power cut leaves a part. The file keeps its permissions, and one that may not be written is not replaced.
/// A temporary file that a crash has left is overwritten by the next try and never listed.
class DiskFiles : public Files {
public:
    /// What the name of a temporary file ends in.
    static constexpr const char* TemporarySuffix = ".new~";

    /// `root` is the league folder.
    explicit DiskFiles(std::filesystem::path root);
    DiskFiles(std::filesystem::path root, disk::Calls& calls);

    std::string read(const std::string& path) override;
    std::string readFirst(const std::string& path, std::size_t limit) override;
    bool holds(const std::string& path, std::string_view content) override;
    void write(const std::string& path, std::string_view content, Durability durability) override;
    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override;
    void remove(const std::string& path) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool isFile(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    std::uintmax_t size(const std::string& path) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::vector<std::string> foldersIn(const std::string& folder) override;
    void sync() override;

    const std::filesystem::path& root() const { return root_; }

private:
    using NativePath = std::filesystem::path::string_type;

    std::filesystem::path root_;
    disk::Calls& calls_;
    std::unordered_set<NativePath> unsyncedFiles_;   ///< files changed with Durability::Later
    std::unordered_set<NativePath> unsyncedFolders_; ///< folders in which a name has come or gone since
};

} // namespace iceline
