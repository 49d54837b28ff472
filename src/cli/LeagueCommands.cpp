#include "app/WelcomeWindow.h"
#include "cli/Command.h"
#include "site/SiteTemplate.h"

namespace iceline::cli {

namespace {

Status init(Session& session, const NoArguments&) {
    Operation operation(session.app());
    copyMissingOfTemplate(session.app().siteTemplate(), session.app().files());
    operation.commit();
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
               "Create what the league lacks, the files of the site's template included", init);
    addCommand(program, call, "publish", "Rewrite the whole web site from the league's files", publish);
}

} // namespace iceline::cli
