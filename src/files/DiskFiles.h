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
/// A temporary file that a crash has left is overwritten by the next try and never listed; outside the league
/// a file of such a name is one as any other.
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
    void rename(const std::string& path, const std::string& name) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool isFile(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    bool leadsOut(const std::string& path) override;
    std::uintmax_t size(const std::string& path) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::vector<std::string> foldersIn(const std::string& folder) override;
    void tryOut(const std::vector<Change>& changes) override;
    void sync() override;

    /// A sentence for the user that says what the disk cannot do, once; empty when there is nothing to say.
    std::string takeLimit();

    const std::filesystem::path& root() const { return root_; }

private:
    using NativePath = std::filesystem::path::string_type;

    void replaceLink(const std::filesystem::path& link, std::uintmax_t length, std::string_view content,
                     Durability durability);
    void syncFolder(const std::filesystem::path& folder);
    bool syncDisks();

    /// Sees to it that a file that was replaced outlasts a power cut, now or with sync().
    void settle(const std::filesystem::path& file, Durability durability);

    std::filesystem::path root_;
    disk::Calls& calls_;
    std::string limit_; ///< what the disk cannot do
    bool limitTold_ = false;
    std::unordered_set<NativePath> unsyncedFiles_;   ///< files changed with Durability::Later
    std::unordered_set<NativePath> unsyncedFolders_; ///< folders in which a name has come or gone since
};

} // namespace iceline
