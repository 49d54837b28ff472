#include "cli/Command.h"
#include "store/LeaguePaths.h"

namespace iceline::cli {

namespace {

Status listCoaches(Session& session, const NoArguments&) {
    for (const std::string& coach : session.app().files().foldersIn(paths::Coaches))
        session.out() << coach << '\n';
    return Status::Done;
}

} // namespace

void addCoachCommands(CLI::App& program, Call& call) {
    CLI::App& coach = *program.add_subcommand("coach", "Look after the coaches");
    coach.require_subcommand(1);
    addCommand(coach, call, "list", "List the coaches", listCoaches);
}

} // namespace iceline::cli
