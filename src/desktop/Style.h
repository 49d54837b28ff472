#pragma once

class QApplication;

namespace iceline::desktop {

/// Gives the program its look: one style, palette and style sheet on every platform.
void applyStyle(QApplication& application);

} // namespace iceline::desktop
