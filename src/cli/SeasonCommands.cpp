#include "cli/Command.h"
#include "cli/UseWindow.h"
#include "cli/WindowPrinters.h"
#include "season/Options.h"

namespace iceline::cli {

namespace {

Status seasonLength(Session& session, const std::optional<std::string>& length) {
    if (!length) {
        session.out() << session.app().state.SeasonLength << '\n';
        return Status::Done;
    }
    Options& options = use<Options>(session, WindowId::Options);
    options.SeasonLength = *length;
    options.EnterSeasonLength_Click();
    return seasonLengthOf(*length) ? Status::Done : Status::Refused;
}

Works seasonLengthWorks(const std::optional<std::string>& length) {
    return length ? Works::OnLeague : Works::Looking;
}

Status goToPlayoffs(Session& session, const NoArguments&) {
    use<Options>(session, WindowId::Options).GoToPlayoffs_Click();
    return Status::Done;
}

Status clearStats(Session& session, const std::string& team) {
    const auto index = teamByName(team);
    if (!index && team != TeamAbbr[AllTeams])
        throw UsageError("there is no team '" + team + "'; give its full name, or ALL for the league");
    Options& options = use<Options>(session, WindowId::Options);
    options.ClearTeamSelect = index ? index->number() : LeagueTeams;
    options.ClearTeamSelect_Click();
    options.Command8_Click();
    return Status::Done;
}

Status newSeason(Session& session, const std::string& name) {
    Options& options = use<Options>(session, WindowId::Options);
    options.SeasonName = name;
    return options.NewSeason_Click() ? Status::Done : Status::Refused;
}

} // namespace

void printOptions(const Options& window, Printout& out) {
    out << "Current Season Length  " << window.content().CurrentSeasonLength << "\n\nCoach List:\n";
    for (const std::string& coach : window.content().coaches)
        out << "  " << coach << "\n";
}

void addSeasonCommands(CLI::App& program, Call& call) {
    const auto [command, length] = addCommand<std::optional<std::string>>(
        program, call, "season-length", "Show the games that a team plays in the regular season, or set them",
        seasonLength, seasonLengthWorks);
    command->add_option("N", *length, "the new length")->type_name("");
    addCommand(program, call, "go-to-playoffs", "End the regular season now", goToPlayoffs);
    const auto [clear, team] = addCommand<std::string>(
        program, call, "clear", "Set the statistics of a team or of the league back to nothing", clearStats);
    addArgument(*clear, "TEAM", *team, "the team's full name, or ALL for the league");
    const auto [begin, name] = addCommand<std::string>(
        program, call, "new-season", "Keep the season under a name, with its site, and begin a new one",
        newSeason);
    addArgument(*begin, "NAME", *name, "the name of the season that is over");
}

} // namespace iceline::cli
