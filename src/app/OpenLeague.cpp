#include "app/OpenLeague.h"

#include "app/Catalogue.h"
#include "app/ProgramFolder.h"
#include "app/Startup.h"
#include "files/FileError.h"

#include <utility>

namespace iceline {

OpenLeague::OpenLeague(const std::filesystem::path& folder, Platform& platform, LeagueLock lock,
                       Writes writes)
    : lock_(std::move(lock)), disk_(folder), memory_(disk_), siteTemplate_(siteTemplateFolder()),
      writes_(writes), lockWarning_(lock_.warning()),
      app_(writes == Writes::ToDisk ? static_cast<Files&>(disk_) : memory_, siteTemplate_, platform,
           windowCatalogue()) {}

bool OpenLeague::start() {
    if (writes_ == Writes::ToMemory)
        recoverInMemory();
    const bool started = startUp(app_);
    if (writes_ == Writes::ToMemory)
        app_.lookOnly();
    return started;
}

void OpenLeague::recoverInMemory() {
    try {
        Journal(memory_).recover();
    } catch (const FileError&) {
        memory_.discard();
        memory_.remove(Journal::FileName);
    }
}

bool OpenLeague::hasUnfinishedChange() {
    return disk_.isFile(Journal::FileName);
}

std::string OpenLeague::takeWarnings() {
    std::string warnings = std::exchange(lockWarning_, {});
    const std::string limit = disk_.takeLimit();
    if (!warnings.empty() && !limit.empty())
        warnings += "\n";
    return warnings + limit;
}

} // namespace iceline
