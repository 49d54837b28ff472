#pragma once

#include "files/DiskCalls.h"
#include "support/MemoryFiles.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace iceline::test {

/// The calls of this machine, with a record of what would outlast a power cut: content once its file was
/// synced, names and folders once the folder that they are in was.
class UnsyncedDisk : public disk::Calls {
public:
    /// What a power cut leaves of the changes that were not synced: of names all, none, those within the
    /// folders of the league, or only that they have gone; of contents all or none.
    struct Leaves {
        enum class Names { None, Gone, InFolders, All } names;
        bool contents;
    };
    static constexpr std::array<Leaves, 8> AllThatItLeaves{{{Leaves::Names::None, false},
                                                            {Leaves::Names::None, true},
                                                            {Leaves::Names::Gone, false},
                                                            {Leaves::Names::Gone, true},
                                                            {Leaves::Names::InFolders, false},
                                                            {Leaves::Names::InFolders, true},
                                                            {Leaves::Names::All, false},
                                                            {Leaves::Names::All, true}}};

    explicit UnsyncedDisk(std::filesystem::path root) : root_(std::move(root)) {}

    /// Takes these files, which must be on the disk, as synced.
    void begin(const MemoryFiles& files);

    /// The files that would be found if the power were cut now.
    MemoryFiles afterPowerCut(Leaves leaves) const;

    /// The n-th sync from now on (1 is the next one) does nothing.
    void skipSync(int n) { skipped_ = syncs + n; }

    /// Called before each change of the disk.
    std::function<void()> beforeChange = [] {};

    int syncs = 0;
    std::string skipped;           ///< what the skipped sync would have synced
    std::vector<std::string> made; ///< the changes and syncs, in order: "write a.txt", "sync folder "

    int open(const std::filesystem::path& path, disk::Purpose purpose) override;
    std::ptrdiff_t write(int handle, const char* bytes, std::size_t size) override;
    bool cut(int handle, std::uintmax_t length) override;
    bool rename(const std::filesystem::path& file, const std::filesystem::path& name) override;
    bool remove(const std::filesystem::path& path) override;
    bool makeFolder(const std::filesystem::path& folder) override;
    bool sync(int handle) override;
    bool syncFile(const std::filesystem::path& file) override;
    bool syncFolder(const std::filesystem::path& folder) override;
    bool syncDiskOf(const std::filesystem::path& folder) override;

private:
    struct Content {
        std::string now;
        std::string synced;
    };
    struct Opened {
        std::string path;
        std::shared_ptr<Content> content;
        std::size_t position = 0;
    };
    struct Names {
        std::map<std::string, std::shared_ptr<Content>> files;
        std::set<std::string> folders;
    };

    Names namesAfterPowerCut(Leaves::Names left) const;
    std::string nameOf(const std::filesystem::path& path) const;
    void note(const std::string& change);
    bool countSync(const std::string& what);
    void syncNamesIn(const std::string& folder);

    std::filesystem::path root_;
    Names now_, synced_;
    std::map<int, Opened> opened_;
    int skipped_ = 0;
};

} // namespace iceline::test
