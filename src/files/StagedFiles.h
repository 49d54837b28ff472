#pragma once

#include "files/Change.h"
#include "files/Files.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace iceline {

/// Makes a change; Files::sync() brings it to the disk.
void makeChange(const Change& change, Files& files);

/// The files as one operation sees them: reads see what the operation has written, and nothing reaches the
/// base files. However often an operation touches a file, the base file is read at most once and has at most
/// one entry in changes(). Files outside the league folder can be read and not written; a base file cannot
/// become a folder in the same operation, nor a folder a file.
class StagedFiles : public Files {
public:
    explicit StagedFiles(Files& base) : base_(base) {}

    std::string read(const std::string& path) override;
    std::string readFirst(const std::string& path, std::size_t limit) override;
    void write(const std::string& path, std::string_view content, Durability durability) override;
    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override;
    void remove(const std::string& path) override;
    /// A folder goes by its old name until the operation is committed.
    void rename(const std::string& path, const std::string& name) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool isFile(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    std::uintmax_t size(const std::string& path) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::vector<std::string> foldersIn(const std::string& folder) override;
    void sync() override {}

    /// What brings the base files to the state seen here, in the order in which it must be done. A file
    /// whose content is what it was is left out.
    std::vector<Change> changes();

    /// Forgets everything that was written here, and what was read of the base files.
    void discard();

private:
    enum class State { Whole, Extended, Removed };

    /// What the operation has made of a file.
    struct Staged {
        State state = State::Whole;
        std::uintmax_t length = 0; ///< Extended: bytes kept of the base file
        std::string content;       ///< Whole: the file. Extended: what follows the kept bytes
    };

    /// What has been read of a base file.
    struct Read {
        std::string content;
        bool whole = false;
    };

    const Staged* staged(const std::string& path) const;

    /// The entry of a file that is to be written, which must be possible at that path.
    Staged& stage(const std::string& path);

    const std::string& baseContent(const std::string& path);
    const std::string& firstOfBase(const std::string& path, std::size_t limit);
    bool isUnchanged(const std::string& path, const Staged& file);
    void requireFolder(const std::string& path);

    Files& base_;
    std::map<std::string, Staged> staged_;
    std::map<std::string, bool> folders_; ///< made (true) or removed (false) by the operation
    std::vector<Change> renamed_;         ///< folders that get another name
    std::map<std::string, Read> read_;
};

} // namespace iceline
