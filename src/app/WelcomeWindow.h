#pragma once

#include "shell/Windows.h"

namespace iceline {

class Application;

/// The main window: the catalogue of the other windows, and the button that publishes the site.
class WelcomeWindow {
public:
    explicit WelcomeWindow(Application& application) : app_(application) {}

    /// A click on a row of the catalogue: the window, loaded again unless it is open.
    /// The standings are brought up to date in either case.
    Window& List1_Click(WindowId id);

    /// "Generate Webpages": rewrites the whole site and says so.
    void Command1_Click();

private:
    Application& app_;
};

} // namespace iceline
