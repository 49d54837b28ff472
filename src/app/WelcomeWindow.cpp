#include "app/WelcomeWindow.h"

#include "shell/Application.h"
#include "site/GenerateWebpages.h"
#include "standings/Standings.h"

namespace iceline {

Window& WelcomeWindow::List1_Click(WindowId id) {
    Window& window = app_.windows().open(id);
    if (id == WindowId::Standings) {
        Standings::in(app_).DivisionStandingsUpdate();
        Standings::in(app_).HomeAwayStandingsUpdate();
    }
    return window;
}

void WelcomeWindow::Command1_Click() {
    generateWebpages(app_);
}

} // namespace iceline
