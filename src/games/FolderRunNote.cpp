#include "games/FolderRunNote.h"

#include "store/Fields.h"

#include <algorithm>
#include <array>

namespace iceline {

template <>
std::span<const Field<FolderRunNote>> fieldsOf<FolderRunNote>() {
    static constexpr std::array Fields{
        i32("Imported", &FolderRunNote::Imported),
        item("LastFile", &FolderRunNote::LastFile),
        item("Folder", &FolderRunNote::Folder),
    };
    return Fields;
}

std::string FolderRunNote::text() const {
    const std::string games = Imported == 0 ? "No file of it was imported."
                                            : std::to_string(Imported) +
                                                  " Files of it were imported. The last file imported was " +
                                                  LastFile + ".";
    return "The import of the folder " + Folder + " was broken off. " + games;
}

std::optional<FolderRunNote> readFolderRunNote(Files& files) {
    if (!files.isFile(paths::FolderRun))
        return std::nullopt;
    const std::string content = files.read(paths::FolderRun);
    ItemReader reader(paths::FolderRun, content);
    FolderRunNote note;
    readFields(reader, note);
    return note;
}

void writeFolderRunNote(Files& files, FolderRunNote note) {
    // No text of a data file holds these.
    std::ranges::replace_if(
        note.Folder, [](char c) { return c == '"' || c == '\r' || c == '\n'; }, '\'');
    files.write(paths::FolderRun, lineOf(paths::FolderRun, note), Durability::Now);
}

void removeFolderRunNote(Files& files) {
    files.remove(paths::FolderRun);
}

} // namespace iceline
