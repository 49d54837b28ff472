#include "cli/Command.h"
#include "views/Coaches.h"

namespace iceline::cli {

namespace {

Status listCoaches(Session& session, const NoArguments&) {
    for (const std::string& coach : coachNames(session.app().files()))
        session.out() << coach << '\n';
    return Status::Done;
}

} // namespace

std::string knownCoach(Session& session, const std::string& name) {
    if (const auto coach = findCoach(session.app().files(), storedCoachName(name)))
        return *coach;
    throw UsageError("there is no coach '" + name + "'; 'iceline coach list' lists them");
}

void addCoachCommands(CLI::App& program, Call& call) {
    CLI::App& coach = *program.add_subcommand("coach", "Look after the coaches");
    coach.require_subcommand(1);
    addCommand(coach, call, "list", "List the coaches", listCoaches);
}

} // namespace iceline::cli
