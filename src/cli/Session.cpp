#include "cli/Session.h"

#include "app/Catalogue.h"
#include "app/ProgramFolder.h"
#include "app/Startup.h"
#include "store/LeaguePaths.h"

namespace iceline::cli {

namespace fs = std::filesystem;

Session::League::League(const fs::path& folder, Platform& platform)
    : lock(folder, "iceline"), disk(folder), siteTemplate(siteTemplateFolder()),
      app(disk, siteTemplate, platform, windowCatalogue()) {}

Session::Session(Console& console, LeagueChoice choice)
    : console_(console), choice_(std::move(choice)), platform_(console) {}

bool Session::start() {
    const fs::path folder = fs::absolute(choice_.folder);
    if (!fs::is_directory(folder))
        throw UsageError(choice_.folder + ": there is no such folder");
    league_.emplace(folder, platform_);
    if (choice_.yes)
        platform_.respondent = ConsolePlatform::Respondent::AlwaysOk;
    const bool started = startUp(league_->app);
    platform_.respondent = ConsolePlatform::Respondent::AlwaysOk;
    return started;
}

std::filesystem::path Session::siteFolder() const {
    return fs::absolute(choice_.folder) / paths::WebRoot;
}

std::string absolutePath(const std::string& given) {
    return fs::absolute(given).lexically_normal().generic_string();
}

} // namespace iceline::cli
