#pragma once

#include "files/Files.h"

#include <unordered_map>

namespace iceline {

/// Files of which each data file is read once, however often it is asked for; for a run that reads the
/// league's data again and again and changes none of them. Everything else goes through to those files:
/// the site's pages, which the run writes, and files outside the league.
class ReadCache : public Files {
public:
    explicit ReadCache(Files& source) : source_(source) {}

    std::string read(const std::string& path) override;
    std::string readFirst(const std::string& path, std::size_t limit) override;
    bool holds(const std::string& path, std::string_view content) override {
        return source_.holds(path, content);
    }
    void write(const std::string& path, std::string_view content, Durability durability) override;
    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override;
    void remove(const std::string& path) override;
    void makeFolder(const std::string& path) override { source_.makeFolder(path); }
    void removeFolder(const std::string& path) override { source_.removeFolder(path); }
    bool isFile(const std::string& path) override { return source_.isFile(path); }
    bool isFolder(const std::string& path) override { return source_.isFolder(path); }
    std::uintmax_t size(const std::string& path) override { return source_.size(path); }
    std::vector<std::string> filesIn(const std::string& folder) override { return source_.filesIn(folder); }
    std::vector<std::string> foldersIn(const std::string& folder) override {
        return source_.foldersIn(folder);
    }
    void sync() override { source_.sync(); }

private:
    Files& source_;
    std::unordered_map<std::string, std::string> contents_;
};

} // namespace iceline
