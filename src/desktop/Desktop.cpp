#include "desktop/Desktop.h"

#include <QApplication>

namespace iceline::desktop {

int run(int argc, char** argv) {
    const QApplication application(argc, argv);
    return 0;
}

} // namespace iceline::desktop
