#pragma once

#include "files/Files.h"

#include <optional>
#include <string>

namespace iceline {

namespace paths {

inline const std::string FolderRun = "Folder Run.txt";

} // namespace paths

/// What a folder run has imported so far. It is noted in the league with each game, and forgotten when the
/// run ends in good order; a start that finds it tells of a run that was broken off.
struct FolderRunNote {
    int Imported = 0;
    std::string LastFile; ///< name of the file imported last, "" before the first
    std::string Folder;

    /// What is said of the run when it was broken off.
    std::string text() const;
};

/// The note in the league, none when no run is under way or was broken off.
std::optional<FolderRunNote> readFolderRunNote(Files& files);
void writeFolderRunNote(Files& files, FolderRunNote note);
void removeFolderRunNote(Files& files);

} // namespace iceline
