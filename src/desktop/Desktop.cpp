#include "desktop/Desktop.h"

#include "app/OpenLeague.h"
#include "app/UnfinishedChange.h"
#include "app/Version.h"
#include "desktop/Guard.h"
#include "desktop/LeagueChoice.h"
#include "desktop/QtPlatform.h"
#include "desktop/SplashScreen.h"
#include "desktop/Style.h"
#include "desktop/WelcomeWindow.h"
#include "desktop/WindowsLooks.h"
#include "files/FileError.h"
#include "shell/StopSignals.h"
#include "store/LeaguePaths.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

#include <memory>

namespace iceline::desktop {

namespace {

/// The application of the program, which shows what a click or a timer throws instead of being aborted by it.
class GuardedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        bool handled = false;
        guarded(nullptr, [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }
};

/// Says what the disk of the league cannot do, once.
void tellWarnings(OpenLeague& league) {
    const std::string warnings = league.takeWarnings();
    if (!warnings.empty())
        league.app().platform().say(warnings);
}

/// Finishes a change that a broken run has left, or asks what to do with one that cannot be finished. False
/// when the user wants to leave it as it is.
bool settleJournal(Application& app) {
    try {
        recoverAtStart(app);
        return true;
    } catch (const FileError& error) {
        showError(nullptr, error);
    }
    return settleUnfinishedChange(app);
}

/// Takes the league. Null when a change to it is unfinished and the user does not want even to look.
std::unique_ptr<OpenLeague> openLeague(const std::filesystem::path& folder, Platform& platform) {
    using Writes = OpenLeague::Writes;
    LeagueLock lock(folder, "iceline-scorebook", LeagueLock::For::Looking);
    if (!lock.canWrite()) {
        platform.say("The league folder cannot be written. The league is shown, and nothing can be changed.");
        return std::make_unique<OpenLeague>(folder, platform, std::move(lock), Writes::ToMemory);
    }
    auto league = std::make_unique<OpenLeague>(folder, platform, std::move(lock), Writes::ToDisk);
    tellWarnings(*league);
    if (settleJournal(league->app()))
        return league;
    const Message look{"Look at the league meanwhile? Nothing can then be changed.", Buttons::OkCancel,
                       "Unfinished change"};
    if (platform.ask(look) != Answer::Ok)
        return nullptr;
    lock = league->giveLock();
    league.reset();
    return std::make_unique<OpenLeague>(folder, platform, std::move(lock), Writes::ToMemory);
}

/// The start: the splash window, then the main window. Ends the program when the league does not load.
class Start {
public:
    Start(OpenLeague& league, PreviewServer& preview, std::string game)
        : league_(league), preview_(preview), game_(std::move(game)) {
        splash_ = std::make_unique<SplashScreen>(league.app().state, [this] { load(); });
        splash_->show();
        // Only now: show() itself handles events, at a time when there is no event loop yet that could be
        // ended.
        splash_->startTimers();
        QObject::connect(&looksAtDisk_, &QTimer::timeout, &looksAtDisk_, [this] {
            if (!QApplication::activeModalWidget())
                tellWarnings(league_);
        });
        looksAtDisk_.start(MillisecondsBetweenLooks);
    }

private:
    static constexpr int MillisecondsBetweenLooks = 500;

    void load() {
        guarded(splash_.get(), [this] {
            if (!league_.start())
                return;
            welcome_ = std::make_unique<WelcomeWindow>(league_.app(), preview_);
            welcome_->waitForSplash([this] {
                splash_.reset();
                if (!game_.empty())
                    welcome_->showGame(game_);
            });
        });
        if (!welcome_)
            QApplication::exit(1);
    }

    OpenLeague& league_;
    PreviewServer& preview_;
    std::string game_; ///< path of a save state to show; none when empty
    std::unique_ptr<SplashScreen> splash_;
    std::unique_ptr<WelcomeWindow> welcome_;
    QTimer looksAtDisk_; ///< what a disk cannot do comes to light when it is written
};

/// While it lives, a signal or the end of the desktop session stops a run after the item in hand; the signal
/// then ends the program.
class EndFromOutside : public QObject {
public:
    explicit EndFromOutside(QtPlatform& platform) {
        connect(&looks_, &QTimer::timeout, this, [&platform] {
            if (const int signal = StopSignals::received())
                platform.endProgram(StatusOfSignals + signal);
        });
        looks_.start(MillisecondsBetweenLooks);
        connect(
            qApp, &QGuiApplication::commitDataRequest, this, [&platform] { platform.stopRun(); },
            Qt::DirectConnection);
    }

private:
    static constexpr int MillisecondsBetweenLooks = 200;
    static constexpr int StatusOfSignals = 128;

    StopSignals signals_;
    QTimer looks_;
};

/// Paths that the program was started with, absolute; empty where there is none.
struct Arguments {
    QString league;
    QString game;
};

/// Reads the words of the call. Asked for help or the version it prints that and ends the program, as it does
/// when it does not understand them.
Arguments argumentsOf(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Keeps the books of a hockey league."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption league(
        QStringLiteral("league"),
        QStringLiteral("the league folder (default: the program's own, or the last one)"),
        QStringLiteral("DIR"));
    parser.addOption(league);
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("a save state to show"),
                                 QStringLiteral("[FILE]"));
    parser.process(application);
    const auto absolute = [](const QString& path) {
        return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    };
    return {absolute(parser.value(league)), absolute(parser.positionalArguments().value(0))};
}

int runWindows(const std::filesystem::path& folder, const std::string& game) {
    QtPlatform platform;
    const std::unique_ptr<OpenLeague> league = openLeague(folder, platform);
    if (!league)
        return 1;
    PreviewServer preview(folder / paths::WebRoot);
    const EndFromOutside endFromOutside(platform);
    const Start start(*league, preview, game);
    return QApplication::exec();
}

} // namespace

int runLeague(const std::filesystem::path& folder, const std::string& game) {
    int status = 1;
    guarded(nullptr, [&] { status = runWindows(folder, game); });
    return status;
}

int run(int argc, char** argv) {
    ignoreSignalsOfWrites();
    GuardedApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Iceline"));
    QApplication::setApplicationName(QStringLiteral("iceline-scorebook"));
    QApplication::setApplicationVersion(toQt(versionText("Qt " + std::string(qVersion()))));
    QApplication::setQuitOnLastWindowClosed(false);
#ifdef Q_OS_WIN
    applyWindowsLooks(application);
#endif
    applyStyle(application);
    const Arguments arguments = argumentsOf(application);
    int status = 1;
    guarded(nullptr, [&] {
        const auto folder = arguments.league.isEmpty()
                                ? leagueToOpen()
                                : std::optional(std::filesystem::path(arguments.league.toStdU16String()));
        if (!folder)
            return;
        rememberLeague(*folder);
        status = runLeague(*folder, fromQt(arguments.game));
    });
    return status;
}

} // namespace iceline::desktop
