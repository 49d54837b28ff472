#include "app/WelcomeWindow.h"
#include "cli/Command.h"
#include "site/SiteTemplate.h"
#include "store/LeaguePaths.h"

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

} // namespace

void addLeagueCommands(CLI::App& program, Call& call) {
    addCommand(program, call, "init",
               "Create what the league lacks, and bring the site's files up to date that it has not changed",
               init);
    addCommand(program, call, "publish", "Rewrite the whole web site from the league's files", publish);
}

} // namespace iceline::cli
