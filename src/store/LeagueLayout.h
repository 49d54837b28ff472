#pragma once

#include "files/Files.h"

#include <functional>
#include <string>
#include <vector>

namespace iceline {

/// A folder or file that a whole league has.
struct LeagueEntry {
    enum class Kind {
        Folder,
        Site, ///< the site's root, which begins as a copy of the template
        File
    };

    Kind kind = Kind::Folder;
    std::string path;
    std::function<std::string()> initialContent; ///< File: what it begins with

    bool existsIn(Files& files) const {
        return kind == Kind::File ? files.isFile(path) : files.isFolder(path);
    }
};

/// Everything that the league in `files` must have, in the order in which it is made: the teams' folders and
/// files, those of the league, those of each coach that has a folder, and the folders of the site.
std::vector<LeagueEntry> leagueLayout(Files& files);

} // namespace iceline
