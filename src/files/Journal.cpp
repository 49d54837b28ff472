#include "files/Journal.h"

#include "files/FileError.h"
#include "files/JournalDoubts.h"
#include "files/JournalFormat.h"

#include <algorithm>

namespace iceline {

namespace {

using Kind = Change::Kind;

void refuseForeign(const Change& change) {
    for (const std::string* path : pathsOf(change))
        if (!canBeNoted(*path) || *path == Journal::FileName)
            throw FileError::about(*path, "is no file of the league");
}

/// Commits in one journal are made again from the first to the last, on files that may already be
/// those after the last. Only for a folder that goes or gets another name could this fail then, when an
/// earlier or later commit makes a folder of that name again.
bool needsOwnJournal(const std::vector<Change>& changes) {
    return std::ranges::any_of(changes, [](const Change& c) {
        return c.kind == Kind::RemoveFolder || c.kind == Kind::RenameFolder;
    });
}

FileError notFinished(const std::string& reason, const std::string& wayOut) {
    return FileError::about(Journal::FileName, "the change noted here cannot be finished. " + reason +
                                                   ". Nothing was done; \"iceline recover\" " + wayOut);
}

} // namespace

void Journal::commit(const std::vector<Change>& changes) {
    if (recover() == Recovery::Finished)
        throw FileError::about(FileName,
                               "an earlier change noted here has only now been finished. What was asked for "
                               "now was not done; please do it again");
    if (changes.empty())
        return;
    std::ranges::for_each(changes, refuseForeign);
    files_.tryOut(changes);
    const bool alone = needsOwnJournal(changes);
    if (alone && length_ > 0)
        finish([&] { checkpoint(); });
    append(changes);
    finish([&] {
        for (const Change& change : changes)
            makeChange(change, files_);
        if (alone || !inRun_ || length_ >= CheckpointBytes)
            checkpoint();
    });
}

void Journal::beginRun() {
    inRun_ = true;
}

void Journal::endRun() {
    inRun_ = false;
    if (recover() == Recovery::Nothing && length_ > 0)
        finish([&] { checkpoint(); });
}

Recovery Journal::recover(Doubts doubts) {
    if (!unfinished_)
        return Recovery::Nothing;
    if (!files_.isFile(FileName)) {
        length_ = 0;
        unfinished_ = false;
        return Recovery::Nothing;
    }
    const std::string journal = files_.read(FileName);
    if (iceline::isOfLaterVersion(journal))
        throw notFinished("A later version of the program has noted it, which alone can finish it",
                          "sets it aside");
    const std::vector<NotedChange> changes = wholeCommits(journal);
    if (doubts == Doubts::Refuse)
        if (const auto doubt = doubtAbout(changes, files_))
            throw notFinished(*doubt, "asks whether to make the change all the same or to set it aside");
    finish([&] {
        for (const auto& [change, before] : changes) {
            if (change.kind == Kind::Write || change.kind == Kind::Extend)
                files_.makeFolder(folderOf(change.path));
            makeChange(change, files_);
        }
        checkpoint();
    });
    return changes.empty() ? Recovery::Dropped : Recovery::Finished;
}

bool Journal::isOfLaterVersion() const {
    return files_.isFile(FileName) && iceline::isOfLaterVersion(files_.read(FileName));
}

void Journal::setAside(const std::string& name) {
    files_.rename(FileName, name);
    files_.sync();
    length_ = 0;
    unfinished_ = false;
}

void Journal::append(const std::vector<Change>& changes) {
    std::vector<FileMark> before;
    for (const Change& change : changes)
        before.push_back(markOf(change, files_));
    const std::string entry =
        (length_ == 0 ? std::string(JournalHeading) : "") + journalEntry(changes, before);
    if (length_ + entry.size() > Files::LargestFile)
        throw FileError::tooLarge(FileName, Files::LargestFile);
    try {
        files_.extend(FileName, length_, entry, Durability::Now);
    } catch (const FileError& error) {
        takeBack(error);
        throw;
    }
    length_ += entry.size();
}

/// An entry that could not be brought to the disk may be there whole, and the next start would then make a
/// change that was reported as not made.
void Journal::takeBack(const FileError& failure) {
    try {
        if (length_ == 0)
            files_.remove(FileName);
        else
            files_.extend(FileName, length_, "", Durability::Now);
        files_.sync();
    } catch (const FileError&) {
        unfinished_ = true;
        throw FileError::withAdvice(failure,
                                    "What was noted of the change could not be taken back either, so the "
                                    "next start may still make it. Look before you do it again");
    }
}

/// Brings the files to the disk and forgets the journal; its removal too must be on the disk before anything
/// else is changed, or a later start would make old changes again.
void Journal::checkpoint() {
    files_.sync();
    files_.remove(FileName);
    files_.sync();
    length_ = 0;
}

/// Takes steps that must all be done before the journal is of no more use.
template <class Steps>
void Journal::finish(Steps steps) {
    unfinished_ = true;
    try {
        steps();
    } catch (const FileError& error) {
        throw FileError::withAdvice(error,
                                    "The change is noted in \"" + std::string(FileName) +
                                        "\" and will be finished before the next one or at the next start; "
                                        "where that cannot be, \"iceline recover\" sets it aside");
    }
    unfinished_ = false;
}

} // namespace iceline
