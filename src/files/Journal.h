#pragma once

#include "files/Files.h"
#include "files/StagedFiles.h"

#include <string>
#include <vector>

namespace iceline {

class FileError;

/// Whether changes are made to files that are not as they were when the changes were worked out.
enum class Doubts { Refuse, Ignore };

/// What start-up found of the journal.
enum class Recovery { Nothing, Finished, Dropped };

/// The redo journal of a league: makes the changes of an operation reach the files whole or not at all.
///
/// A commit writes all changes with a checksum to the journal and brings that to the disk, then changes the
/// files, brings these to the disk, and removes the journal. Within a run (a folder of games) commits add to
/// one journal, each at the cost of one sync, and the files are synced together when the run ends or the
/// journal has grown to CheckpointBytes.
class Journal {
public:
    /// Name of the journal in the league folder.
    static constexpr const char* FileName = "Unfinished Changes.journal";

    /// A run's journal that has grown to this many bytes is brought to the files and begun again.
    static constexpr std::size_t CheckpointBytes = 8u << 20;

    explicit Journal(Files& files) : files_(files) {}

    /// Makes the changes, all or none. Throws FileError: when the journal could not be written the files are
    /// as before; when a file could not be changed although the journal was whole, the journal stays and is
    /// finished by the next recover() or commit(). A commit that had to finish an earlier one does no more
    /// than that and says so, since its own changes were worked out on files that have changed since; an
    /// operation that calls recover() before it reads is never refused for that reason.
    void commit(const std::vector<Change>& changes);

    /// Until endRun(), files changed by commits are synced together.
    void beginRun();
    void endRun();

    /// Finishes the whole commits of a journal that was left, drops a torn one, and removes the
    /// journal. Doing so twice, or after a part of it was done, gives the same files. Costs nothing when
    /// every commit of this object was finished; in a run, what is due at its end is left to that.
    /// Throws FileError when a change cannot be made, is in doubt (doubtAbout()) and doubts are refused, or
    /// was noted by a later version of the program.
    Recovery recover(Doubts doubts = Doubts::Refuse);

    /// Whether a journal lies there that only a later version of the program can finish.
    bool isOfLaterVersion() const;

    /// Gives the journal another name, so that its changes are never made. The files stay as they are.
    void setAside(const std::string& name);

private:
    void append(const std::vector<Change>& changes);
    void takeBack(const FileError& failure);
    void checkpoint();

    template <class Steps>
    void finish(Steps steps);

    Files& files_;
    bool inRun_ = false;
    std::uintmax_t length_ = 0; ///< bytes of the whole commits in the journal
    bool unfinished_ = true;    ///< a journal may be on the disk whose changes were not all made
};

} // namespace iceline
