#include "season/Options.h"

#include "coaches/Coaches.h"
#include "copies/Backup.h"
#include "copies/KeptSeason.h"
#include "files/FileError.h"
#include "leaders/Rankings.h"
#include "league/Numbers.h"
#include "playoffs/SeasonEnd.h"
#include "season/SeasonOperations.h"
#include "shell/LoggedChange.h"
#include "standings/Standings.h"
#include "store/LeagueFiles.h"
#include "text/Names.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace iceline {

namespace {

constexpr int EndedByHand = -1;
constexpr int SeasonLengthLimit = std::numeric_limits<std::int16_t>::max();

/// Has an open window show the standings of the files; one that cannot read them shows what it did.
void showStandingsOfFiles(Application& app) {
    try {
        if (app.windows().isOpen(WindowId::Standings))
            Standings::in(app).DivisionStandingsUpdate();
    } catch (const FileError&) {
        return;
    }
}

/// Does the operation and notes it in the history, together with what is worked out of it afterwards, so that
/// nothing can fail once it is on the disk. When it does not get there, the shared state and the standings on
/// view are as before.
template <class Kind, class Afterwards>
void perform(Application& app, const Kind& operation, Afterwards afterwards) {
    try {
        LoggedChange change(app);
        carryOut(app, operation);
        afterwards();
        change.commit(operation);
    } catch (const FileError&) {
        showStandingsOfFiles(app);
        throw;
    }
}

bool confirms(Application& app, const std::string& question, const std::string& title = Message().title) {
    return app.platform().ask({question, Buttons::YesNo, title}) == Answer::Yes;
}

/// A season length as it is typed, without an exponent.
std::optional<double> numberOf(std::string_view typed) {
    const std::string_view text = trimmed(typed);
    const char* end = text.data() + text.size();
    double value = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<int> seasonLengthOf(const std::string& typed) {
    const std::optional<double> value = numberOf(typed);
    if (!value)
        return std::nullopt;
    const double length = rounded(*value, 0);
    const bool isInRange = length >= EndedByHand && length <= SeasonLengthLimit;
    return isInRange ? std::optional(static_cast<int>(length)) : std::nullopt;
}

void Options::Form_Load() {
    content_.coaches = coachNames(app_.files());
    content_.CurrentSeasonLength = std::to_string(app_.state.SeasonLength);
}

std::string Options::chosenCoach() const {
    return Combo1 == NotChosen ? "" : content_.coaches.at(CoachIndex(Combo1));
}

/// Changes the coaches and shows them as they are then.
template <class Kind>
void Options::changeCoaches(const Kind& operation) {
    std::vector<std::string> coaches;
    perform(app_, operation, [&] { coaches = coachNames(app_.files()); });
    content_.coaches = coaches;
    Combo1 = NotChosen;
}

/// Says so when no coach is chosen.
bool Options::isCoachChosen() {
    if (Combo1 == NotChosen)
        app_.platform().say("Please select coach first!");
    return Combo1 != NotChosen;
}

void Options::NewCoach_Click() {
    content_.Command2Visible = false;
    content_.Command1Visible = !content_.Command1Visible;
    NewC.clear();
    changed();
}

/// Shows the name as it will be stored in the input, and says why it cannot be taken when it cannot. `former`
/// may get another spelling.
bool Options::acceptsNewName(const std::string& former) {
    NewC = storedCoachName(NewC);
    changed();
    const auto holder = findCoach(app_.files(), NewC);
    const bool isRespelt = holder == former && NewC != former;
    if (NewC.empty() || (holder && !isRespelt)) {
        app_.platform().say(NewC + " already exists");
        return false;
    }
    if (const auto problem = coachNameProblem(NewC)) {
        app_.platform().say(*problem);
        return false;
    }
    return true;
}

void Options::Command1_Click() {
    if (acceptsNewName())
        changeCoaches(CoachAdded{NewC});
    NewC.clear();
    changed();
}

void Options::EditCoach_Click() {
    if (!isCoachChosen())
        return;
    turnRenamingFor(chosenCoach());
    changed();
}

/// Opens the input row for another name of a coach, or closes it.
void Options::turnRenamingFor(const std::string& coach) {
    content_.Command1Visible = false;
    content_.Command2Visible = !content_.Command2Visible;
    NewC = coach;
}

void Options::Command2_Click() {
    if (!isCoachChosen())
        return;
    const std::string coach = chosenCoach();
    if (acceptsNewName(coach)) {
        changeCoaches(CoachRenamed{coach, NewC});
        // His folder goes by the former name until the new one is on the disk.
        std::ranges::replace(content_.coaches, coach, NewC);
        std::ranges::sort(content_.coaches, nameBefore);
        turnRenamingFor(coach);
    }
    changed();
}

void Options::DeleteCoach_Click() {
    if (!isCoachChosen())
        return;
    if (!confirms(app_, "Are you sure you want to delete coach " + chosenCoach() + "?"))
        return;
    backUpByItself(app_);
    changeCoaches(CoachDeleted{chosenCoach()});
    content_.Command2Visible = false;
    changed();
}

void Options::CoachTeam_Click() {
    if (Combo1 == NotChosen) {
        app_.platform().say("Please select coach first.");
        return;
    }
    const std::string coach = chosenCoach();
    if (!confirms(app_, "Are you sure you want to clear all of Coach " + coach + "'s Stats?"))
        return;
    perform(app_, CoachCleared{coach}, [] {});
    app_.platform().say(coach + "'s Stats have been cleared.");
}

void Options::EnterSeasonLength_Click() {
    const auto length = seasonLengthOf(SeasonLength);
    if (!length) {
        app_.platform().say("The season length must be a whole number from -1 to 32767, not \"" +
                            SeasonLength + "\".");
        return;
    }
    perform(app_, SeasonLengthSet{*length}, [] {});
    content_.CurrentSeasonLength = std::to_string(*length);
    changed();
    app_.platform().say("The Season Length has been updated.");
}

void Options::GoToPlayoffs_Click() {
    if (!confirms(app_, "Are you sure you want to end the Regular Season and move to the Playoffs?"))
        return;
    bool seasonEnds = false;
    perform(app_, GoneToPlayoffs(), [&] { seasonEnds = seasonIsOver(app_); });
    if (seasonEnds)
        turnToPlayoffs(app_);
    app_.platform().say("The Regular Season is now over, proceed with the Playoffs.");
}

void Options::ClearTeamSelect_Click() {
    changed();
}

void Options::Command8_Click() {
    if (ClearTeamSelect == NotChosen) {
        app_.platform().say("Please select a team or [ALL] first!");
        return;
    }
    if (!confirms(app_, "Are you sure you want to reset everything back to 0?", "Reset Stats? - Yes or No"))
        return;
    backUpByItself(app_);
    if (ClearTeamSelect < LeagueTeams)
        clearOneTeam(TeamIndex(ClearTeamSelect));
    else
        clearWholeLeague();
}

void Options::clearOneTeam(TeamIndex team) {
    perform(app_, StatsCleared{team}, [this] { afterClearing(); });
    app_.platform().say(std::string(TeamName[team]) + " stats cleared");
}

void Options::clearWholeLeague() {
    clearAll(StatsCleared{AllTeams});
    app_.platform().say("All stats have been cleared.");
}

/// Does an operation that clears all teams, and shows the season length as it is then.
template <class Kind>
void Options::clearAll(const Kind& operation) {
    int length = 0;
    perform(app_, operation, [&] {
        length = readNumber16(app_.files(), paths::GamesUntilPlayoffs);
        afterClearing();
    });
    content_.CurrentSeasonLength = std::to_string(length);
    changed();
}

bool Options::NewSeason_Click() {
    if (const auto problem = seasonNameProblem(app_.files(), SeasonName)) {
        app_.platform().say(*problem);
        return false;
    }
    if (!confirms(app_,
                  "Are you sure you want to keep this season as " + SeasonName + " and begin a new one?"))
        return false;
    backUpByItself(app_);
    keepSeason(app_, SeasonName, [this] { clearAll(NewSeason{SeasonName}); });
    app_.platform().say("The season is kept as " + SeasonName + ", and a new one has begun.");
    SeasonName.clear();
    changed();
    return true;
}

void Options::BackUp_Click() {
    app_.platform().say("The league has been copied to " + backUp(app_) + ".");
}

/// The tables in memory follow the files.
void Options::afterClearing() {
    Standings::in(app_).DivisionStandingsUpdate();
    Rankings::in(app_, PartOfYear::Season).tmLeadersLoad();
}

} // namespace iceline
