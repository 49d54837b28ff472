#include "coaches/Coaches.h"
#include "history/HistoryLeague.h"
#include "log/HistoryLog.h"

#include <algorithm>
#include <functional>
#include <random>

namespace iceline {
namespace {

using test::HistoryLeague;
using testing::HasSubstr;
using testing::IsEmpty;

/// One thing that a user does.
using Deed = std::function<void(HistoryLeague&)>;

/// A coach as he was chosen when the deed was done first, "" when there was none of that name.
class ChosenCoach {
public:
    explicit ChosenCoach(std::string name) : name_(std::move(name)) {}

    const std::string& in(HistoryLeague& league) const {
        if (!*chosen_)
            *chosen_ = findCoach(league.files(), name_).value_or("");
        return **chosen_;
    }

private:
    std::string name_;
    std::shared_ptr<std::optional<std::string>> chosen_ = std::make_shared<std::optional<std::string>>();
};

/// Two teams that meet in the play-offs; others when there are none.
Pairing teamsInSeries(HistoryLeague& league, int number) {
    for (const PlayoffSeriesRecord& series : league.app().state.PlayoffSeries)
        if (league.app().state.PlayoffMode && series.TeamA != BlankTeam && series.TeamB != BlankTeam)
            return {series.TeamA, series.TeamB};
    return sampleSchedule(number + 1, 1).at(static_cast<std::size_t>(number));
}

/// Games of the play-offs are of the teams that met when the deed was done first.
Deed playoffGame(int number) {
    return [number, teams = std::make_shared<std::optional<Pairing>>()](HistoryLeague& league) {
        if (!*teams)
            *teams = teamsInSeries(league, number);
        league.importBetween(**teams, number);
    };
}

/// Makes a game an exhibition of its coach, or gives it one.
void correctGame(HistoryLeague& league, int number, const std::string& coach) {
    const std::vector<Step> steps = readHistory(league.files());
    const auto game = std::ranges::find_if(steps, [&](const Step& step) {
        const GameImported* imported = gameAt(step);
        return imported && imported->saveState == "game" + std::to_string(number) + ".gs0";
    });
    Correction correction;
    correction.exhibition = number % 2 == 0;
    correction.homeCoach = coach.empty() ? std::nullopt : std::optional(coach);
    try {
        if (game != steps.end())
            correct(league.app(), game->entry.number, correction);
    } catch (const HistoryRefusal&) {
        return;
    }
}

/// A deed of any kind, by chance; games have ever new numbers.
Deed anyDeed(std::mt19937& chance, int number) {
    const auto below = [&chance](int limit) { return std::uniform_int_distribution(0, limit - 1)(chance); };
    const std::string coach = "Coach" + std::to_string(below(2));
    const std::string other = "Coach" + std::to_string(2 + below(2));
    const ChosenCoach chosen(coach);
    const int team = below(LeagueTeams);
    const int length = below(4);
    const int game = below(number + 1);
    switch (below(19)) {
    case 0:
        return [=](HistoryLeague& league) { league.addCoach(coach); };
    case 1:
        return [=](HistoryLeague& league) { league.deleteCoach(coach); };
    case 2:
        return [=](HistoryLeague& league) { league.clearCoach(coach); };
    case 3:
        return [=](HistoryLeague& league) { league.renameCoach(coach, other); };
    case 4:
        return [=](HistoryLeague& league) { league.clear(team); };
    case 5:
        return [=](HistoryLeague& league) { league.setSeasonLength(std::to_string(80 + length)); };
    case 6:
        return [=](HistoryLeague& league) { league.import(number, true, chosen.in(league)); };
    case 7:
        return [](HistoryLeague& league) { league.restart(); };
    case 8:
        return [=](HistoryLeague& league) { league.clear(length == 0 ? LeagueTeams : team); };
    case 9:
        return [](HistoryLeague& league) { league.goToPlayoffs(); };
    case 10:
    case 11:
        return playoffGame(number);
    case 12:
        return [=](HistoryLeague& league) { correctGame(league, game, chosen.in(league)); };
    case 13:
        return [=](HistoryLeague& league) { league.perform(NewSeason{"Season " + std::to_string(number)}); };
    default:
        return [=](HistoryLeague& league) { league.import(number, false, chosen.in(league)); };
    }
}

/// The paths whose contents differ.
std::vector<std::string> differing(const std::map<std::string, std::string>& one,
                                   const std::map<std::string, std::string>& other) {
    std::vector<std::string> paths;
    for (const auto& [path, content] : one)
        if (!other.contains(path) || other.at(path) != content)
            paths.push_back(path);
    for (const auto& [path, content] : other)
        if (!one.contains(path))
            paths.push_back(path);
    return paths;
}

/// Deeds by chance, each with the step that it came to; none when it was refused. A start has no line either,
/// and is done all the same.
struct Played {
    HistoryLeague league;
    std::vector<Deed> deeds;
    std::vector<std::optional<Step>> steps;
    std::vector<bool> isDone; ///< to be done in a league that is to be the same
};

void play(Played& played, unsigned seed, int count) {
    std::mt19937 chance(seed);
    for (int i = 0; i < count; ++i) {
        const std::size_t before = readHistory(played.league.files()).size();
        const int starts = played.league.starts;
        played.deeds.push_back(anyDeed(chance, i));
        played.deeds.back()(played.league);
        const std::vector<Step> steps = readHistory(played.league.files());
        const auto own = std::find_if(steps.begin() + static_cast<std::ptrdiff_t>(before), steps.end(),
                                      [](const Step& step) { return canBeUndone(step.entry.operation); });
        played.steps.push_back(own == steps.end() ? std::nullopt : std::optional(*own));
        played.isDone.push_back(own != steps.end() || played.league.starts != starts);
    }
}

/// The league in which only these deeds were done. What was refused for a reason of then is refused again.
std::map<std::string, std::string> leagueOf(const Played& played) {
    HistoryLeague league;
    for (std::size_t i = 0; i < played.deeds.size(); ++i) {
        if (!played.isDone[i])
            continue;
        const auto* refused =
            played.steps[i] ? std::get_if<ImportRefused>(&played.steps[i]->entry.operation) : nullptr;
        if (refused)
            league.perform(*refused);
        else
            played.deeds[i](league);
    }
    return league.books();
}

/// Undoes a deed when what follows lets it. False when it does not; the league is as before then.
bool undoDeed(Played& played, std::size_t deed) {
    const auto before = played.league.books();
    try {
        undo(played.league.app(), played.steps[deed]->entry.number);
    } catch (const HistoryRefusal& refusal) {
        EXPECT_THAT(refusal.what(), HasSubstr("would not hold any more"));
        EXPECT_EQ(played.league.books(), before);
        return false;
    }
    played.isDone[deed] = false;
    return true;
}

TEST(UndoTest, GivesTheLeagueThatNeverHadTheOperation) {
    std::map<std::string_view, int> undone;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        Played played;
        play(played, seed, 16);
        const auto all = played.league.books();
        EXPECT_THAT(differing(all, leagueOf(played)), IsEmpty());
        std::vector<std::size_t> out;
        std::mt19937 chance(seed);
        for (int tries = 0; tries < 6; ++tries) {
            const auto deed = std::uniform_int_distribution<std::size_t>(0, played.deeds.size() - 1)(chance);
            if (tries % 3 == 2 && !out.empty()) {
                redo(played.league.app());
                played.isDone[out.back()] = true;
                out.pop_back();
            } else if (played.steps[deed] && played.isDone[deed] && undoDeed(played, deed)) {
                out.push_back(deed);
                ++undone[whatOf(played.steps[deed]->entry.operation)];
            }
            EXPECT_THAT(differing(played.league.books(), leagueOf(played)), IsEmpty());
        }
        for (std::size_t i = 0; i < out.size(); ++i)
            redo(played.league.app());
        EXPECT_THAT(differing(played.league.books(), all), IsEmpty());
        EXPECT_THAT(auditBooks(played.league.app()).differences, IsEmpty());
    }
    EXPECT_GE(undone.size(), 6U) << testing::PrintToString(undone);
}

} // namespace
} // namespace iceline
