#include "app/WelcomeWindow.h"
#include "cli/Command.h"
#include "export/DataExport.h"
#include "site/SiteSettings.h"
#include "site/SiteTemplate.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <fmt/core.h>
#include <optional>

namespace iceline::cli {

namespace {

Status init(Session& session, const NoArguments&) {
    Operation operation(session.app());
    const auto left =
        bringSiteUpToDate(session.app().siteTemplate(), session.app().files(), RemovedFiles::ComeBack);
    operation.commit();
    for (const std::string& path : left)
        session.out() << "Left as the league has changed it, though the program has a newer one: "
                      << paths::page(path) << '\n';
    return Status::Done;
}

Status publish(Session& session, const NoArguments&) {
    return uninterrupted([&] {
        WelcomeWindow(session.app()).Command1_Click();
        return Status::Done;
    });
}

Status exportTo(Session& session, const std::string& given) {
    const std::string folder = absolutePath(given);
    session.out() << exportData(session.app(), folder) << " files are in " << folder << '\n';
    return Status::Done;
}

struct SettingArguments {
    std::optional<std::string> key;
    std::optional<std::string> value;
};

Status siteSettings(Session& session, const SettingArguments& arguments) {
    SiteSettings settings = readSiteSettings(session.app().files());
    if (!arguments.key) {
        for (const SiteSetting& setting : AllSiteSettings)
            session.out() << fmt::format("{:<12} {}\n", setting.key, settings.*setting.value);
        return Status::Done;
    }
    const auto setting = std::ranges::find(AllSiteSettings, *arguments.key, &SiteSetting::key);
    if (setting == AllSiteSettings.end())
        throw UsageError("there is no setting '" + *arguments.key +
                         "'; there are name, address and description");
    if (!arguments.value) {
        session.out() << settings.*setting->value << '\n';
        return Status::Done;
    }
    if (const auto problem = settingProblem(setting->key, *arguments.value))
        throw UsageError(*problem);
    settings.*setting->value = *arguments.value;
    changeSiteSettings(session.app(), settings);
    return Status::Done;
}

} // namespace

void addLeagueCommands(CLI::App& program, Call& call) {
    addCommand(program, call, "init",
               "Create what the league lacks, and bring the site's files up to date that it has not changed",
               init);
    addCommand(program, call, "publish", "Rewrite the whole web site from the league's files", publish);
    const auto [exportCommand, folder] = addCommand<std::string>(
        program, call, "export", "Write the league's data as CSV and JSON for other programs", exportTo,
        Works::Looking);
    addArgument(*exportCommand, "DIR", *folder, "the folder for them, made when missing");
    const auto [command, arguments] = addCommand<SettingArguments>(
        program, call, "site-settings", "Show what the site tells of the league, or set it", siteSettings);
    command->add_option("KEY", arguments->key, "name, address or description")->type_name("");
    command->add_option("VALUE", arguments->value, "the new value; \"\" for none")->type_name("");
}

} // namespace iceline::cli
