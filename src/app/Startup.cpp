#include "app/Startup.h"

#include "app/UnfinishedChange.h"
#include "copies/KeptSeason.h"
#include "games/FolderRunNote.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "site/SiteTemplate.h"
#include "store/LeagueFiles.h"
#include "store/LeagueLayout.h"

namespace iceline {

namespace {

const Message MissingFilesQuestion{
    "Some or all of the required data files are not present,\n"
    "would you like the missing ones to be created?\n"
    "\n"
    "(There are several files, so make sure the .EXE is in a separate folder first!)",
    Buttons::OkCancel, "Data files missing"};

void tellOfBrokenRun(Application& app) {
    Operation operation(app);
    const auto note = readFolderRunNote(app.files());
    if (!note)
        return;
    removeFolderRunNote(app.files());
    operation.commit();
    app.platform().say(note->text());
}

void tellOfBrokenSeason(Application& app) {
    if (const auto name = removeBrokenSeason(app.files()))
        app.platform().say("The new season has not begun: keeping the old one as " + *name +
                           " was broken off. What there was of the copy has been removed.");
}

void make(const LeagueEntry& entry, Application& app) {
    switch (entry.kind) {
    case LeagueEntry::Kind::Folder:
        app.files().makeFolder(entry.path);
        break;
    case LeagueEntry::Kind::Site:
        bringSiteUpToDate(app.siteTemplate(), app.files(), RemovedFiles::ComeBack);
        break;
    case LeagueEntry::Kind::File:
        app.files().write(entry.path, entry.initialContent());
        break;
    }
}

/// Makes what is missing and brings the site up to date. False when the user does not want the missing files
/// made; nothing is then touched.
bool completeLeague(Application& app) {
    Operation operation(app);
    bool AskedOnce = false;
    for (const LeagueEntry& entry : leagueLayout(app.files())) {
        if (entry.existsIn(app.files()))
            continue;
        if (!AskedOnce && app.platform().ask(MissingFilesQuestion) != Answer::Ok)
            return false;
        AskedOnce = true;
        make(entry, app);
    }
    bringSiteUpToDate(app.siteTemplate(), app.files(), RemovedFiles::StayAway);
    operation.commit();
    return true;
}

} // namespace

bool startUp(Application& app) {
    const BusyPointer busy(app.platform());
    app.state.ShowWindows = true;
    recoverAtStart(app);
    tellOfBrokenRun(app);
    tellOfBrokenSeason(app);
    if (!completeLeague(app))
        return false;
    app.state.SeasonLength = readNumber16(app.files(), paths::GamesUntilPlayoffs);
    checkSeason(app);
    app.state.StartupDone = true;
    return true;
}

} // namespace iceline
