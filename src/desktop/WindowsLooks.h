#pragma once

class QApplication;

namespace iceline::desktop {

/// What the program looks like under Windows alone: in the system's own font, or else one like it; and under
/// title bars, which the system draws, that are dark where the palette is.
void applyWindowsLooks(QApplication& application);

} // namespace iceline::desktop
