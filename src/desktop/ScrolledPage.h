#pragma once

#include <QScrollArea>

namespace iceline::desktop {

/// The contents of a window, which scroll where they are too large for it. When they come to need more room
/// than before, the window becomes larger, as far as its screen allows.
class ScrolledPage : public QScrollArea {
    Q_OBJECT

public:
    /// Fills `window`.
    explicit ScrolledPage(QWidget* window);

    /// Opens the window in the middle of its screen, as large as its contents ask for and the screen allows.
    void fitWindow();

    QSize sizeHint() const override { return widget()->sizeHint(); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void growWindow();
    QRect room() const;
    QSize sizeFor(QSize contents) const;

    QSize needed_; ///< the least room for the contents, when last looked at
};

} // namespace iceline::desktop
