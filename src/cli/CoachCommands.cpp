#include "cli/Command.h"
#include "cli/UseWindow.h"
#include "cli/WindowPrinters.h"
#include "coaches/CoachStats.h"
#include "coaches/Coaches.h"
#include "season/Options.h"

namespace iceline::cli {

namespace {

struct Renaming {
    std::string from;
    std::string to;
};

std::optional<std::string> coachNamed(Session& session, const std::string& name) {
    return findCoach(session.app().files(), storedCoachName(name));
}

/// The options window with the coach chosen.
Options& chooseCoach(Session& session, const std::string& name) {
    const int index = indexOfCoach<Options>(session, WindowId::Options, name);
    Options& options = use<Options>(session, WindowId::Options);
    options.Combo1 = index;
    return options;
}

Status listCoaches(Session& session, const NoArguments&) {
    for (const std::string& coach : coachNames(session.app().files()))
        session.out() << coach << '\n';
    return Status::Done;
}

Status addCoach(Session& session, const std::string& name) {
    Options& options = use<Options>(session, WindowId::Options);
    if (!options.content().Command1Visible)
        options.NewCoach_Click();
    const std::size_t before = options.content().coaches.size();
    options.NewC = name;
    options.Command1_Click();
    return options.content().coaches.size() > before ? Status::Done : Status::Refused;
}

Status renameCoach(Session& session, const Renaming& renaming) {
    Options& options = chooseCoach(session, renaming.from);
    if (!options.content().Command2Visible)
        options.EditCoach_Click();
    options.NewC = renaming.to;
    options.Command2_Click();
    return options.Combo1 == Options::NotChosen ? Status::Done : Status::Refused;
}

Status deleteCoach(Session& session, const std::string& name) {
    chooseCoach(session, name).DeleteCoach_Click();
    return Status::Done;
}

Status clearCoach(Session& session, const std::string& name) {
    chooseCoach(session, name).CoachTeam_Click();
    return Status::Done;
}

Status showCoach(Session& session, const std::string& name) {
    const int index = indexOfCoach<CoachStats>(session, WindowId::CoachStats, name);
    CoachStats& window = use<CoachStats>(session, WindowId::CoachStats);
    window.TeamSelect = index;
    window.TeamSelect_Click();
    session.print([&](Printout& out) {
        out << window.CoachName() << "\n\n";
        printTeamView(*window.content().coach, out);
    });
    return Status::Done;
}

} // namespace

std::string knownCoach(Session& session, const std::string& name) {
    if (const auto coach = coachNamed(session, name))
        return *coach;
    throw UsageError("there is no coach '" + name + "'; 'iceline coach list' lists them");
}

void addCoachCommands(CLI::App& program, Call& call) {
    CLI::App& coach = *program.add_subcommand("coach", "Look after the coaches")->group("Commands");
    coach.require_subcommand(1);
    addCommand(coach, call, "list", "List the coaches", listCoaches, Works::Looking);
    const auto [add, added] = addCommand<std::string>(coach, call, "add", "Add a coach", addCoach);
    addArgument(*add, "NAME", *added, "at most 20 characters; a blank becomes _");
    const auto [rename, names] =
        addCommand<Renaming>(coach, call, "rename", "Give a coach another name", renameCoach);
    addArgument(*rename, "OLD", names->from, "his name until now");
    addArgument(*rename, "NEW", names->to, "at most 20 characters; a blank becomes _");
    const auto [remove, removed] =
        addCommand<std::string>(coach, call, "delete", "Delete a coach and his record", deleteCoach);
    addArgument(*remove, "NAME", *removed, "the coach");
    const auto [clear, cleared] =
        addCommand<std::string>(coach, call, "clear", "Set a coach's record back to nothing", clearCoach);
    addArgument(*clear, "NAME", *cleared, "the coach");
    const auto [show, shown] = addCommand<std::string>(
        coach, call, "show", "Print a coach's figures and write his page", showCoach, Works::Looking);
    addArgument(*show, "NAME", *shown, "the coach");
}

} // namespace iceline::cli
