#include "site/SiteTemplate.h"

#include "store/LeaguePaths.h"

#include <string_view>

namespace iceline {

namespace {

/// Keeps an empty folder in the source; no part of the site.
constexpr std::string_view FolderKeeper = ".gitkeep";

void copyMissing(Files& from, const std::string& folder, Files& to) {
    const std::string target = paths::WebRoot + folder;
    const std::string source = folder.empty() ? "" : folder.substr(1);
    to.makeFolder(target);
    for (const std::string& name : from.filesIn(source)) {
        const std::string path = target + "/" + name;
        if (name != FolderKeeper && !to.isFile(path))
            to.write(path, from.read(source.empty() ? name : source + "/" + name));
    }
    for (const std::string& name : from.foldersIn(source))
        copyMissing(from, folder + "/" + name, to);
}

} // namespace

void copyMissingOfTemplate(Files& siteTemplate, Files& league) {
    copyMissing(siteTemplate, "", league);
}

} // namespace iceline
