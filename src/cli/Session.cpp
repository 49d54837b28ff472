#include "cli/Session.h"

#include "files/FileError.h"
#include "files/NativePath.h"
#include "store/LeaguePaths.h"

#include <utility>

namespace iceline::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* Program = "iceline";

fs::path absolute(const std::string& given) {
    if (given.empty())
        throw UsageError("the path of a file or folder is empty");
    try {
        return fs::absolute(toNative(given));
    } catch (const fs::filesystem_error& error) {
        throw FileError::about("the current folder", error.code().message());
    }
}

} // namespace

Session::Session(Console& console, LeagueChoice choice)
    : console_(console), choice_(std::move(choice)), platform_(console) {}

Session::~Session() {
    end();
}

void Session::end() {
    tellWarnings();
    league_.reset();
    if (!forPager_.empty())
        show(console_, std::exchange(forPager_, {}));
}

void Session::print(const std::function<void(Printout&)>& print, bool json) {
    using Format = Printout::Format;
    Printout printout(json ? Format::Json : console_.outHasColours ? Format::Colours : Format::Text);
    print(printout);
    if (console_.pager.empty())
        console_.out << printout.result();
    else
        forPager_ += printout.result();
}

fs::path Session::leagueFolder() const {
    fs::path folder = absolute(choice_.folder);
    if (!fs::is_directory(folder))
        throw UsageError(choice_.folder + ": there is no such folder");
    return folder;
}

void Session::tellWarnings() {
    if (!league_)
        return;
    const std::string warnings = league_->takeWarnings();
    if (!warnings.empty())
        report(console_, warnings);
}

void Session::takeLeague() {
    takeLeague(LeagueLock(leagueFolder(), Program));
}

void Session::takeLeague(LeagueLock lock) {
    league_.emplace(leagueFolder(), platform_, std::move(lock), OpenLeague::Writes::ToDisk);
    tellWarnings();
    if (choice_.yes)
        platform_.respondent = ConsolePlatform::Respondent::AlwaysOk;
}

bool Session::startUpOnLeague() {
    const bool started = league_->start();
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
        if (!league_->hasUnfinishedChange())
            throw;
        report(console_, error.what());
    }
    LeagueLock kept = league_->giveLock();
    league_.reset();
    return startInMemory(std::move(kept));
}

bool Session::startInMemory(LeagueLock lock) {
    league_.emplace(leagueFolder(), platform_, std::move(lock), OpenLeague::Writes::ToMemory);
    return startUpOnLeague();
}

std::filesystem::path Session::siteFolder() const {
    return absolute(choice_.folder) / paths::WebRoot;
}

std::string absolutePath(const std::string& given) {
    const std::u8string path = absolute(given).lexically_normal().generic_u8string();
    return {path.begin(), path.end()};
}

} // namespace iceline::cli
