#pragma once

#include "app/Catalogue.h"
#include "shell/Application.h"
#include "store/PlayerFiles.h"
#include "store/TeamFiles.h"
#include "support/MemoryFiles.h"
#include "support/TestPlatform.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace iceline::test {

/// A run of the program on a league in memory, start-up done: 24 teams that have played nothing, their
/// built-in rosters, no coaches, a site with the template's folders. What start-up said is not in the
/// platform's messages.
class TestLeague {
public:
    /// A new league.
    TestLeague();

    /// The next run of the program on the files that another run has left.
    explicit TestLeague(const MemoryFiles& leagueFiles);

    /// A team's line of `Records.txt`.
    TeamRecord record(TeamIndex team, PartOfYear part = PartOfYear::Season);
    void setRecord(TeamIndex team, PartOfYear part, const TeamRecord& record);

    Streak streak(TeamIndex team, PartOfYear part = PartOfYear::Season);
    void setStreak(TeamIndex team, PartOfYear part, const Streak& streak);

    /// Makes the letters of `results` ("WWLT", oldest first) the lines of `Last 10 Games.txt`.
    void setResults(TeamIndex team, PartOfYear part, std::string_view results);

    Roster roster(TeamIndex team);
    void setRoster(TeamIndex team, const Roster& roster);

    /// A player's line of `Player Stats.txt`. Set it to the kind that his position in the roster asks for.
    PlayerStatsLine playerStats(TeamIndex team, PartOfYear part, int row);
    void setPlayerStats(TeamIndex team, PartOfYear part, int row, const PlayerStatsLine& stats);

    /// Adds a coach with his three files.
    void addCoach(const std::string& name, const TeamRecord& record = {}, const Streak& streak = {});
    TeamRecord coachRecord(const std::string& name);

    /// The text of a page or fragment of the site: page("TStats/BOS.htm").
    std::string page(const std::string& name);

    /// What the message boxes have said, oldest first.
    std::vector<std::string> said() const { return platform.said(); }

    MemoryFiles files;
    MemoryFiles siteTemplate;
    TestPlatform platform;
    Application app{files, siteTemplate, platform, windowCatalogue()};
};

/// The text of a `Players List.txt`.
std::string rosterText(const Roster& roster);

/// A site template as small as tests need it.
MemoryFiles smallSiteTemplate();

/// The files of a league but for those of its history, whose lines bear the time.
std::map<std::string, std::string> withoutHistory(std::map<std::string, std::string> files);

/// Writes a league into a folder of the disk.
void writeToDisk(const MemoryFiles& league, const std::filesystem::path& folder);

} // namespace iceline::test
