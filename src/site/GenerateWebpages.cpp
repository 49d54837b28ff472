#include "site/GenerateWebpages.h"

#include "files/FileError.h"
#include "players/PlayerPages.h"
#include "shell/Application.h"
#include "site/OldSeasons.h"
#include "site/ReadCache.h"
#include "site/SiteData.h"
#include "site/SiteFeed.h"
#include "site/SiteTemplate.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

/// The windows in the order in which they write. The standings come twice so that the second time they have
/// the clinch marks worked out by the first; PlayerStats ends the writing mode.
constexpr std::array WindowsOfRun{
    WindowId::Rankings,
    WindowId::TeamStats,
    WindowId::PlayoffTeamStats,
    WindowId::CoachStats,
    WindowId::CoachStats,
    WindowId::CoachStats,
    WindowId::AllTimeRecords,
    WindowId::Standings,
    WindowId::Standings,
    WindowId::Rankings,
    WindowId::PlayoffRankings,
    WindowId::Playoffs,
    WindowId::PlayoffAllTimeRecords,
    WindowId::PlayoffPlayerStats,
    WindowId::PlayerStats,
};

constexpr int TeamSteps = 4; ///< rosters and player pages of both parts of the year

/// Folders of the template that nothing makes.
constexpr std::array TemplateFolders{"Rankings", "PlayoffRankings", "PStats", "PlayoffPStats"};

/// ShowWindows is False for the run and True after it, however it ends.
class WritingMode {
public:
    explicit WritingMode(ApplicationState& state) : state_(state) { state_.ShowWindows = false; }
    ~WritingMode() { state_.ShowWindows = true; }
    WritingMode(const WritingMode&) = delete;
    WritingMode& operator=(const WritingMode&) = delete;

private:
    ApplicationState& state_;
};

/// Brings what the site has of the template up to date, and sees to it that the template is whole.
void requireSite(Application& app) {
    bringSiteUpToDate(app.siteTemplate(), app.files(), RemovedFiles::StayAway);
    std::string missing;
    for (const std::string folder : TemplateFolders)
        if (!app.files().isFolder(paths::page(folder)))
            missing += (missing.empty() ? "" : ", ") + folder;
    if (!missing.empty())
        throw FileError::about(paths::WebRoot, "folders of the site's template are missing: " + missing +
                                                   " (no page has been written)");
}

class WebpageRun {
public:
    explicit WebpageRun(Application& app)
        : app_(app), progress_(app.platform(), "Generating webpages",
                               static_cast<int>(WindowsOfRun.size()) + TeamSteps * LeagueTeams + 1, false) {}

    /// False when the user stopped the run, which then ends between two pages.
    bool run() {
        for (const WindowId id : WindowsOfRun)
            app_.windows().unload(id);
        for (const WindowId id : WindowsOfRun)
            if (!writePagesOf(id))
                return false;
        for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs}) {
            for (const TeamIndex team : AllLeagueTeams) {
                if (!progress_.next(profilesFolder(part, team) + "/index.htm"))
                    return false;
                writeRosterPage(app_.files(), part, team);
            }
            for (const TeamIndex team : AllLeagueTeams) {
                if (!progress_.next(profilesFolder(part, team) + "/"))
                    return false;
                writePlayerPages(app_.files(), app_.platform(), part, team);
            }
        }
        if (!progress_.next("data/"))
            return false;
        const GameTimes times = app_.log().timesOfGames(app_.files());
        writeSiteData(app_, times);
        writeSeasons(app_.files());
        writeFeedAndMap(app_.files(), readSiteSettings(app_.files()), times,
                        std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
        return true;
    }

private:
    bool writePagesOf(WindowId id) {
        if (!progress_.next(std::string(app_.windows().row(id).entry)))
            return false;
        app_.state.ShowWindows = false;
        app_.windows().use(id);
        app_.windows().unload(id);
        return true;
    }

    Application& app_;
    ProgressRun progress_;
};

} // namespace

bool writeSite(Application& app) {
    app.requireChangeable();
    requireSite(app);
    bool finished = false;
    {
        const BusyPointer busy(app.platform());
        const WritingMode writing(app.state);
        ReadCache files(app.files());
        const FilesInForce inForce(app, files);
        const OpenWindowsAside aside(app.windows(), WindowsOfRun);
        finished = WebpageRun(app).run();
    }
    return finished;
}

void generateWebpages(Application& app) {
    const bool finished = writeSite(app);
    app.platform().say(
        finished ? "All Webpages have been generated and are located in the IcelineWebpages directory."
                 : "The run was stopped before all Webpages were generated.");
    app.windows().renewOpen();
}

} // namespace iceline
