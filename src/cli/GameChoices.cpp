#include "cli/GameChoices.h"

#include "cli/UseWindow.h"
#include "games/StatExtractor.h"

namespace iceline::cli {

namespace {

/// The position of the coach in the window's lists, that of "No Coach" without a name.
int coachPosition(Session& session, const std::string& name) {
    return name.empty() ? 0 : indexOfCoach<StatExtractor>(session, WindowId::StatExtractor, name);
}

} // namespace

void addGameChoices(CLI::App& command, GameChoices& choices) {
    command.add_flag("--exhibition", choices.exhibition,
                     "an exhibition game, which counts for coaches alone");
    command.add_option("--home-coach", choices.homeCoach, "the coach of the home team")->type_name("NAME");
    command.add_option("--away-coach", choices.awayCoach, "the coach of the away team")->type_name("NAME");
}

void choose(Session& session, const GameChoices& choices) {
    coachPosition(session, choices.homeCoach);
    const int away = coachPosition(session, choices.awayCoach);
    // Only now: the look-up before may have loaded the window again.
    const int home = coachPosition(session, choices.homeCoach);
    if (home != 0 && home == away)
        throw UsageError("nobody can coach both teams");
    StatExtractor& window = StatExtractor::in(session.app());
    window.Season = !choices.exhibition;
    window.Exhibition = choices.exhibition;
    window.T1Coach_Click(home);
    window.T2Coach_Click(away);
}

} // namespace iceline::cli
