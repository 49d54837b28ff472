#pragma once

#include "files/Files.h"

#include <map>
#include <set>
#include <string>

namespace iceline::test {

/// Files in memory, for tests. A folder must exist before a file is written into it, as on a disk.
class MemoryFiles : public Files {
public:
    std::string read(const std::string& path) override;
    std::string readFirst(const std::string& path, std::size_t limit) override;
    void write(const std::string& path, std::string_view content, Durability durability) override;
    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override;
    void remove(const std::string& path) override;
    void rename(const std::string& path, const std::string& name) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool isFile(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    std::uintmax_t size(const std::string& path) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::vector<std::string> foldersIn(const std::string& folder) override;
    void sync() override {}

    /// Makes the folders and files in `target`.
    void copyTo(Files& target) const;

    std::map<std::string, std::string> files; ///< path to content
    std::set<std::string> folders;
    int reads = 0;  ///< calls of read() and readFirst()
    int writes = 0; ///< calls of write() and extend()

private:
    void requirePlaceForFile(const std::string& path);
    void requireFolder(const std::string& path);
};

} // namespace iceline::test
