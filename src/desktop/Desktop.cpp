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
#include "store/LeaguePaths.h"

#include <QApplication>

#include <memory>

namespace iceline::desktop {

namespace {

/// Splash window first, the main window behind it; ends the program when start-up does not succeed.
class Start {
public:
    Start(Application& application, PreviewServer& preview) : app_(application), preview_(preview) {
        splash_ = std::make_unique<SplashScreen>(app_.state, [this] { load(); });
        splash_->show();
    }

private:
    void load() {
        bool started = false;
        guarded(splash_.get(), [&] { started = startUp(app_); });
        if (!started) {
            QApplication::exit(1);
            return;
        }
        welcome_ = std::make_unique<WelcomeWindow>(app_, preview_);
        welcome_->waitForSplash([this] { splash_->close(); });
    }

    Application& app_;
    PreviewServer& preview_;
    std::unique_ptr<SplashScreen> splash_;
    std::unique_ptr<WelcomeWindow> welcome_;
};

int runLeague(const std::filesystem::path& folder) {
    const LeagueLock lock(folder, "iceline-scorebook");
    DiskFiles disk(folder);
    DiskFiles siteTemplate(siteTemplateFolder());
    QtPlatform platform;
    Application app(disk, siteTemplate, platform, windowCatalogue());
    PreviewServer preview(folder / paths::WebRoot);
    const Start start(app, preview);
    return QApplication::exec();
}

} // namespace

int run(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);
    int status = 1;
    guarded(nullptr, [&] { status = runLeague(programFolder()); });
    return status;
}

} // namespace iceline::desktop
