#include "files/JournalDoubts.h"

#include "files/Files.h"

#include <algorithm>
#include <map>

namespace iceline {

namespace {

using Kind = Change::Kind;

bool isOfFolder(Kind kind) {
    return kind == Kind::MakeFolder || kind == Kind::RemoveFolder || kind == Kind::RenameFolder;
}

bool isOfFile(const NotedChange& noted) {
    return !isOfFolder(noted.change.kind);
}

/// Whether a power cut can have left this of a file that was being written.
bool isTorn(std::string_view found, std::string_view whole) {
    return found.size() <= whole.size() &&
           std::ranges::equal(found, whole.substr(0, found.size()),
                              [](char is, char was) { return is == was || is == '\0'; });
}

/// Whether a file can be as it is with a part of the changes made.
bool isExpected(const std::vector<const NotedChange*>& changes, Files& files) {
    const Change& first = changes.front()->change;
    const auto& before = changes.front()->before;
    if (!before || markOf(first, files) == *before)
        return true;
    if (!files.isFile(first.path))
        return std::ranges::any_of(changes,
                                   [](const auto* noted) { return noted->change.kind == Kind::Remove; });
    if (first.kind == Kind::Extend)
        return files.size(first.path) >= first.length || !before->exists;
    const std::string found = files.read(first.path);
    std::string after;
    return std::ranges::any_of(changes, [&](const auto* noted) {
        const Change& change = noted->change;
        after.resize(change.kind == Kind::Extend ? std::min<std::uintmax_t>(change.length, after.size()) : 0);
        after += change.content;
        return change.kind != Kind::Remove && isTorn(found, after);
    });
}

} // namespace

FileMark markOf(const Change& change, Files& files) {
    if (isOfFolder(change.kind))
        return {files.isFolder(change.path), 0, 0};
    if (!files.isFile(change.path))
        return {};
    if (change.kind == Kind::Extend)
        return {true, files.size(change.path), 0};
    const std::string content = files.read(change.path);
    return {true, content.size(), checksum(content)};
}

std::optional<std::string> doubtAbout(const std::vector<NotedChange>& changes, Files& files) {
    std::map<std::string, std::vector<const NotedChange*>> byFile;
    for (const NotedChange& noted : changes) {
        for (const std::string* path : pathsOf(noted.change))
            if (files.leadsOut(*path))
                return *path + ": a link leads out of the league folder";
        if (isOfFile(noted))
            byFile[noted.change.path].push_back(&noted);
    }
    for (const auto& [path, ofFile] : byFile)
        if (!isExpected(ofFile, files))
            return path + ": the file has been changed since";
    return std::nullopt;
}

} // namespace iceline
