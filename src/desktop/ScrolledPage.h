#pragma once

#include <QScrollArea>

namespace iceline::desktop {

/// The contents of a window. What is too large for the window, or for the screen, scrolls.
class ScrolledPage : public QScrollArea {
    Q_OBJECT

public:
    /// Fills `window`.
    explicit ScrolledPage(QWidget* window);

    /// Opens the window in the middle of its screen, as large as its contents ask for and the screen allows.
    void fitWindow();

    /// Makes the window larger, as far as its screen allows, when its contents need more room than before.
    void growWindow();

    QSize sizeHint() const override { return widget()->sizeHint(); }

private:
    QRect room() const;
    QSize sizeFor(QSize contents) const;
};

} // namespace iceline::desktop
