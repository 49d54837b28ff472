#include "FuzzLeague.h"

#include "games/StatExtractor.h"
#include "samples/SampleGames.h"
#include "season/Options.h"
#include "support/TestLeague.h"

namespace iceline::test {

namespace {

constexpr int Games = 24;

void importGames(TestLeague& league) {
    StatExtractor& window = StatExtractor::in(league.app);
    window.Season = true;
    window.Exhibition = false;
    window.T1Coach_Click(1);
    window.T2Coach_Click(2);
    league.platform.chosen.push_back("Games");
    window.ImportFolder_Click();
}

std::vector<MemoryFiles> makeLeagues() {
    TestLeague league;
    std::vector<MemoryFiles> leagues{league.files};
    writeSampleGames(league.files, "Games", Games, 1);
    league.addCoach(HomeCoach);
    league.addCoach(AwayCoach);
    importGames(league);
    leagues.push_back(league.files);
    TestLeague playoffs(league.files);
    static_cast<Options&>(playoffs.app.windows().use(WindowId::Options)).GoToPlayoffs_Click();
    importGames(playoffs);
    leagues.push_back(playoffs.files);
    return leagues;
}

} // namespace

const std::vector<MemoryFiles>& fuzzLeagues() {
    static const std::vector<MemoryFiles> leagues = makeLeagues();
    return leagues;
}

std::vector<std::string> sampleSaveStates() {
    MemoryFiles files;
    writeSampleGames(files, "Games", 4, 2);
    std::vector<std::string> games;
    for (const auto& [path, content] : files.files)
        games.push_back(content);
    return games;
}

std::vector<std::string> fromLeagues(const std::string& path) {
    std::vector<std::string> contents;
    for (const MemoryFiles& league : fuzzLeagues())
        if (const auto file = league.files.find(path); file != league.files.end())
            contents.push_back(file->second);
    return contents;
}

} // namespace iceline::test
