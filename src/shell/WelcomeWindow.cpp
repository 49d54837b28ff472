#include "shell/WelcomeWindow.h"

#include "shell/Application.h"

namespace iceline {

Window& WelcomeWindow::List1_Click(WindowId id) {
    return app_.windows().open(id);
}

} // namespace iceline
