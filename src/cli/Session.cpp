#include "cli/Session.h"

#include "app/Catalogue.h"
#include "app/ProgramFolder.h"
#include "app/Startup.h"
#include "files/FileError.h"
#include "files/Journal.h"
#include "store/LeaguePaths.h"

namespace iceline::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* Program = "iceline";

fs::path absolute(const std::string& given) {
    if (given.empty())
        throw UsageError("the path of a file or folder is empty");
    try {
        return fs::absolute(given);
    } catch (const fs::filesystem_error& error) {
        throw FileError::about("the current folder", error.code().message());
    }
}

} // namespace

Session::League::League(const fs::path& folder, Platform& platform, LeagueLock taken, Files files)
    : lock(std::move(taken)), disk(folder), memory(disk), siteTemplate(siteTemplateFolder()),
      app(files == Files::OnDisk ? static_cast<iceline::Files&>(disk) : memory, siteTemplate, platform,
          windowCatalogue()) {}

Session::Session(Console& console, LeagueChoice choice)
    : console_(console), choice_(std::move(choice)), platform_(console) {}

Session::~Session() {
    end();
}

void Session::end() {
    tellLimits();
    league_.reset();
}

fs::path Session::leagueFolder() const {
    fs::path folder = absolute(choice_.folder);
    if (!fs::is_directory(folder))
        throw UsageError(choice_.folder + ": there is no such folder");
    return folder;
}

/// Says what the disk of the league cannot do, once.
void Session::tellLimits() {
    if (!league_)
        return;
    const std::string limit = league_->disk.takeLimit();
    if (!limit.empty())
        report(console_, limit);
}

void Session::takeLeague() {
    takeLeague(LeagueLock(leagueFolder(), Program));
}

void Session::takeLeague(LeagueLock lock) {
    league_.emplace(leagueFolder(), platform_, std::move(lock), League::Files::OnDisk);
    if (!league_->lock.warning().empty())
        report(console_, league_->lock.warning());
    if (choice_.yes)
        platform_.respondent = ConsolePlatform::Respondent::AlwaysOk;
}

bool Session::startUpOnLeague() {
    const bool started = startUp(league_->app);
    platform_.respondent = ConsolePlatform::Respondent::AlwaysOk;
    return started;
}

bool Session::start() {
    takeLeague();
    return startUpOnLeague();
}

bool Session::startLooking() {
    LeagueLock lock(leagueFolder(), Program, LeagueLock::For::Looking);
    if (!lock.canWrite()) {
        report(console_, "the league folder cannot be written. Nothing is changed");
        return startInMemory(std::move(lock));
    }
    takeLeague(std::move(lock));
    try {
        return startUpOnLeague();
    } catch (const FileError& error) {
        if (!league_->disk.isFile(Journal::FileName))
            throw;
        report(console_, error.what());
    }
    LeagueLock kept = std::move(league_->lock);
    league_.reset();
    return startInMemory(std::move(kept));
}

/// A change that the journal holds is seen as made, where that can be.
bool Session::startInMemory(LeagueLock lock) {
    league_.emplace(leagueFolder(), platform_, std::move(lock), League::Files::InMemory);
    try {
        Journal(league_->memory).recover();
    } catch (const FileError&) {
        league_->memory.discard();
        league_->memory.remove(Journal::FileName);
    }
    return startUpOnLeague();
}

std::filesystem::path Session::siteFolder() const {
    return absolute(choice_.folder) / paths::WebRoot;
}

std::string absolutePath(const std::string& given) {
    return absolute(given).lexically_normal().generic_string();
}

} // namespace iceline::cli
