#include "files/StagedFiles.h"

#include "files/FileError.h"
#include "text/Names.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace iceline {

namespace {

void cutAndAdd(std::string& content, std::uintmax_t length, std::string_view tail) {
    content.resize(std::min<std::uintmax_t>(length, content.size()));
    content += tail;
}

void requireInLeague(const std::string& path) {
    refuseOutsideLeague(path);
    if (!isInLeague(path))
        throw FileError::about(path, "is not in the league folder");
}

/// Names in a folder, with what is staged there added or taken away.
template <class Paths, class IsThere>
std::vector<std::string> overlay(std::vector<std::string> names, const std::string& folder,
                                 const Paths& staged, IsThere isThere) {
    for (const auto& [path, state] : staged) {
        if (folderOf(path) != folder)
            continue;
        const std::string name = path.substr(folder.empty() ? 0 : folder.size() + 1);
        std::erase(names, name);
        if (isThere(state))
            names.push_back(name);
    }
    std::ranges::sort(names, nameBefore);
    return names;
}

} // namespace

void makeChange(const Change& change, Files& files) {
    switch (change.kind) {
    case Change::Kind::MakeFolder:
        return files.makeFolder(change.path);
    case Change::Kind::Write:
        return files.write(change.path, change.content, Durability::Later);
    case Change::Kind::Extend:
        return files.extend(change.path, change.length, change.content, Durability::Later);
    case Change::Kind::Remove:
        return files.remove(change.path);
    case Change::Kind::RemoveFolder:
        return files.removeFolder(change.path);
    case Change::Kind::RenameFolder:
        // One that is gone has its new name already.
        if (files.isFolder(change.path))
            files.rename(change.path, change.content);
        return;
    }
}

const StagedFiles::Staged* StagedFiles::staged(const std::string& path) const {
    const auto file = staged_.find(path);
    return file == staged_.end() ? nullptr : &file->second;
}

const std::string& StagedFiles::baseContent(const std::string& path) {
    Read& read = read_[path];
    if (!read.whole)
        read = {base_.read(path), true};
    return read.content;
}

const std::string& StagedFiles::firstOfBase(const std::string& path, std::size_t limit) {
    Read& read = read_[path];
    if (!read.whole && read.content.size() < limit) {
        read.content = base_.readFirst(path, limit);
        read.whole = read.content.size() < limit;
    }
    return read.content;
}

StagedFiles::Staged& StagedFiles::stage(const std::string& path) {
    const auto file = staged_.find(path);
    if (file != staged_.end() && file->second.state != State::Removed)
        return file->second;
    requireInLeague(path);
    if (folders_.contains(path) || base_.isFolder(path))
        throw FileError::isFolder(path);
    if (!isFolder(folderOf(path)))
        throw FileError::cannotWrite(path, "its folder is missing");
    return staged_.try_emplace(path, Staged{State::Extended, base_.size(path), ""}).first->second;
}

std::string StagedFiles::read(const std::string& path) {
    const Staged* file = staged(path);
    if (!file && folders_.contains(path) && isFolder(path))
        throw FileError::isFolder(path);
    if (!file)
        return baseContent(path);
    if (file->state == State::Removed)
        throw FileError::missing(path);
    if (file->state == State::Whole || file->length == 0)
        return file->content;
    return baseContent(path).substr(0, file->length) + file->content;
}

std::string StagedFiles::readFirst(const std::string& path, std::size_t limit) {
    const bool seenHere = staged_.contains(path) || folders_.contains(path);
    return (seenHere ? read(path) : firstOfBase(path, limit)).substr(0, limit);
}

void StagedFiles::write(const std::string& path, std::string_view content, Durability) {
    stage(path) = {State::Whole, 0, std::string(content)};
}

void StagedFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                         Durability) {
    Staged& file = stage(path);
    if (file.state == State::Removed) {
        file = {State::Whole, 0, std::string(content)};
    } else if (file.state == State::Whole) {
        cutAndAdd(file.content, length, content);
    } else if (length >= file.length) {
        cutAndAdd(file.content, length - file.length, content);
    } else {
        file.length = length;
        file.content = content;
    }
}

void StagedFiles::remove(const std::string& path) {
    if (isFolder(path))
        throw FileError::isFolder(path);
    if (!isFile(path))
        return;
    if (base_.isFile(path))
        staged_[path] = {State::Removed, 0, ""};
    else
        staged_.erase(path);
}

void StagedFiles::rename(const std::string& path, const std::string& name) {
    if (!isFolder(path))
        return Files::rename(path, name);
    requireInLeague(path);
    requireInLeague(name);
    renamed_.push_back({Change::Kind::RenameFolder, path, 0, name});
}

void StagedFiles::makeFolder(const std::string& path) {
    requireInLeague(path);
    if (isFolder(path))
        return;
    if (isFile(path) || base_.isFile(path))
        throw FileError::isFile(path);
    makeFolder(folderOf(path));
    if (base_.isFolder(path))
        folders_.erase(path);
    else
        folders_[path] = true;
}

void StagedFiles::removeFolder(const std::string& path) {
    if (!isFolder(path)) {
        if (isFile(path))
            throw FileError::isFile(path);
        return;
    }
    if (!filesIn(path).empty() || !foldersIn(path).empty())
        throw FileError::cannotRemove(path, "the folder is not empty");
    if (base_.isFolder(path))
        folders_[path] = false;
    else
        folders_.erase(path);
}

bool StagedFiles::isFile(const std::string& path) {
    const Staged* file = staged(path);
    return file ? file->state != State::Removed : base_.isFile(path);
}

bool StagedFiles::isFolder(const std::string& path) {
    const auto folder = folders_.find(path);
    return folder != folders_.end() ? folder->second : base_.isFolder(path);
}

std::uintmax_t StagedFiles::size(const std::string& path) {
    const Staged* file = staged(path);
    return file ? file->length + file->content.size() : base_.size(path);
}

std::vector<std::string> StagedFiles::filesIn(const std::string& folder) {
    requireFolder(folder);
    auto names = base_.isFolder(folder) ? base_.filesIn(folder) : std::vector<std::string>();
    return overlay(std::move(names), folder, staged_,
                   [](const Staged& file) { return file.state != State::Removed; });
}

std::vector<std::string> StagedFiles::foldersIn(const std::string& folder) {
    requireFolder(folder);
    auto names = base_.isFolder(folder) ? base_.foldersIn(folder) : std::vector<std::string>();
    return overlay(std::move(names), folder, folders_, [](bool made) { return made; });
}

void StagedFiles::requireFolder(const std::string& path) {
    if (!isFolder(path))
        throw isFile(path) ? FileError::isFile(path) : FileError::missingFolder(path);
}

bool StagedFiles::isUnchanged(const std::string& path, const Staged& file) {
    if (!base_.isFile(path) || base_.size(path) != file.length + file.content.size())
        return false;
    return file.content.empty() || std::string_view(baseContent(path)).substr(file.length) == file.content;
}

std::vector<Change> StagedFiles::changes() {
    using Kind = Change::Kind;
    std::vector<Change> made, removed;
    for (const auto& [path, isMade] : folders_)
        if (isMade)
            made.push_back({Kind::MakeFolder, path, 0, ""});
    for (const auto& [path, file] : staged_) {
        if (file.state == State::Removed)
            removed.push_back({Kind::Remove, path, 0, ""});
        else if (!isUnchanged(path, file))
            made.push_back(
                {file.state == State::Whole ? Kind::Write : Kind::Extend, path, file.length, file.content});
    }
    for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder)
        if (!folder->second)
            removed.push_back({Kind::RemoveFolder, folder->first, 0, ""});
    std::ranges::move(removed, std::back_inserter(made));
    std::ranges::copy(renamed_, std::back_inserter(made));
    return made;
}

void StagedFiles::discard() {
    staged_.clear();
    folders_.clear();
    renamed_.clear();
    read_.clear();
}

} // namespace iceline
