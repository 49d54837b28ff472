#pragma once

#include "desktop/LeagueWindow.h"
#include "shell/Application.h"

#include <QPointer>

#include <array>

namespace iceline::desktop {

/// Shows the window objects: keeps a window for each that is open, and takes it away when the object is
/// unloaded.
class WindowManager {
public:
    explicit WindowManager(Application& application);
    ~WindowManager();
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    /// Opens the window of a row, or brings it to the front.
    void open(WindowId id);

    /// The window that is open, or null.
    LeagueWindow* window(WindowId id) const { return windows_[static_cast<std::size_t>(id)]; }

private:
    void close(WindowId id);

    Application& app_;
    std::array<QPointer<LeagueWindow>, WindowCount> windows_;
};

} // namespace iceline::desktop
