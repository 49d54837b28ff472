#pragma once

#include "files/Files.h"

#include <string>

namespace iceline {

class Application;

/// Copies of a league: its books, rosters and history in one file, which bears a checksum.

/// Where copies are kept when no folder is given.
inline const std::string BackupFolder = "History/Backups";

/// How many are kept there of the copies that nobody asked for; older ones go.
inline constexpr int AutomaticBackupsKept = 10;

/// Writes a copy with the time in its name into the folder, which is made when it is missing, reads it back
/// and compares. Returns its path. Throws FileError, also when what was read back is not what was written.
std::string backUp(Application& app, const std::string& folder = BackupFolder);

/// The same before an operation that takes much away.
std::string backUpByItself(Application& app);

/// Makes the league what it was when the copy was made, in one commit; a copy of the league as it is now is
/// made first, and its path returned. The site's other pages stay. Throws FileError for a file that is no
/// whole copy; nothing has changed then.
std::string restore(Application& app, const std::string& copy);

} // namespace iceline
