#include "desktop/Desktop.h"

#include "app/Catalogue.h"
#include "app/ProgramFolder.h"
#include "app/Startup.h"
#include "desktop/Guard.h"
#include "desktop/QtPlatform.h"
#include "desktop/SplashScreen.h"
#include "desktop/Style.h"
#include "desktop/WelcomeWindow.h"
#include "files/DiskFiles.h"
#include "files/LeagueLock.h"
#include "shell/StopSignals.h"
#include "store/LeaguePaths.h"

#include <QApplication>
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

/// The start: the splash window, then the main window. Ends the program when the league does not load.
class Start {
public:
    Start(Application& application, PreviewServer& preview) : app_(application), preview_(preview) {
        splash_ = std::make_unique<SplashScreen>(app_.state, [this] { load(); });
        splash_->show();
        // Only now: show() itself handles events, at a time when there is no event loop yet that could be
        // ended.
        splash_->startTimers();
    }

private:
    void load() {
        guarded(splash_.get(), [this] {
            if (!startUp(app_))
                return;
            welcome_ = std::make_unique<WelcomeWindow>(app_, preview_);
            welcome_->waitForSplash([this] { splash_.reset(); });
        });
        if (!welcome_)
            QApplication::exit(1);
    }

    Application& app_;
    PreviewServer& preview_;
    std::unique_ptr<SplashScreen> splash_;
    std::unique_ptr<WelcomeWindow> welcome_;
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

int runWindows(const std::filesystem::path& folder, const std::filesystem::path& siteTemplate) {
    const LeagueLock lock(folder, "iceline-scorebook");
    DiskFiles disk(folder);
    DiskFiles templateFiles(siteTemplate);
    QtPlatform platform;
    Application app(disk, templateFiles, platform, windowCatalogue());
    PreviewServer preview(folder / paths::WebRoot);
    const EndFromOutside endFromOutside(platform);
    const Start start(app, preview);
    return QApplication::exec();
}

} // namespace

int runLeague(const std::filesystem::path& folder, const std::filesystem::path& siteTemplate) {
    int status = 1;
    guarded(nullptr, [&] { status = runWindows(folder, siteTemplate); });
    return status;
}

int run(int argc, char** argv) {
    ignoreSignalsOfWrites();
    GuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);
    int status = 1;
    guarded(nullptr, [&] { status = runLeague(programFolder(), siteTemplateFolder()); });
    return status;
}

} // namespace iceline::desktop
