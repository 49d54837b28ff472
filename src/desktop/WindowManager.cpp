#include "desktop/WindowManager.h"

#include "app/WelcomeWindow.h"
#include "desktop/WindowMakers.h"

namespace iceline::desktop {

WindowManager::WindowManager(Application& application) : app_(application) {
    app_.windows().onUnload = [this](WindowId id) { close(id); };
}

WindowManager::~WindowManager() {
    app_.windows().onUnload = nullptr;
    for (const QPointer<LeagueWindow>& window : windows_)
        delete window;
}

void WindowManager::open(WindowId id) {
    Window& object = WelcomeWindow(app_).List1_Click(id);
    QPointer<LeagueWindow>& window = windows_[static_cast<std::size_t>(id)];
    if (!window) {
        window = windowMaker(id)(app_, id, object);
        window->showFirst();
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

void WindowManager::close(WindowId id) {
    QPointer<LeagueWindow>& window = windows_[static_cast<std::size_t>(id)];
    if (!window)
        return;
    window->hide();
    window->deleteLater();
    window.clear();
}

} // namespace iceline::desktop
