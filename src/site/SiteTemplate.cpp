#include "site/SiteTemplate.h"

#include "store/LeaguePaths.h"

namespace iceline {

namespace {

bool isHidden(const std::string& name) {
    return name.starts_with('.');
}

void copyMissing(Files& from, const std::string& folder, Files& to) {
    const std::string target = paths::WebRoot + folder;
    const std::string source = folder.empty() ? "" : folder.substr(1);
    to.makeFolder(target);
    for (const std::string& name : from.filesIn(source)) {
        const std::string path = target + "/" + name;
        if (!isHidden(name) && !to.isFile(path))
            to.write(path, from.read(source.empty() ? name : source + "/" + name));
    }
    for (const std::string& name : from.foldersIn(source))
        if (!isHidden(name))
            copyMissing(from, folder + "/" + name, to);
}

} // namespace

void copyMissingOfTemplate(Files& siteTemplate, Files& league) {
    copyMissing(siteTemplate, "", league);
}

} // namespace iceline
