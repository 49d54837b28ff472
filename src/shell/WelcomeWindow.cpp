#include "shell/WelcomeWindow.h"

#include "shell/Application.h"
#include "standings/Standings.h"

namespace iceline {

Window& WelcomeWindow::List1_Click(WindowId id) {
    Window& window = app_.windows().open(id);
    if (id == WindowId::Standings) {
        app_.windows().standings().DivisionStandingsUpdate();
        app_.windows().standings().HomeAwayStandingsUpdate();
    }
    return window;
}

} // namespace iceline
