#include "desktop/ScrolledPage.h"

#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

constexpr QMargins WindowFrame(8, 36, 8, 8); ///< room for the frame that the desktop draws round a window

} // namespace

ScrolledPage::ScrolledPage(QWidget* window) : QScrollArea(window) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    auto* all = new QVBoxLayout(window);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(this);
}

QRect ScrolledPage::room() const {
    return window()->screen()->availableGeometry().marginsRemoved(WindowFrame);
}

/// The size of a window for contents of that size. A scroll bar for the one direction takes room of the
/// other.
QSize ScrolledPage::sizeFor(QSize contents) const {
    const QSize most = room().size();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (contents.height() > most.height())
        contents.rwidth() += bar;
    if (contents.width() > most.width())
        contents.rheight() += bar;
    return contents.boundedTo(most);
}

void ScrolledPage::fitWindow() {
    for (QWidget* control : window()->findChildren<QWidget*>())
        control->ensurePolished(); // the style sheet has a say in their sizes
    widget()->layout()->activate();
    window()->resize(sizeFor(window()->sizeHint()));
    window()->move(room().center() - window()->rect().center() -
                   QPoint(WindowFrame.left(), WindowFrame.top()));
}

void ScrolledPage::growWindow() {
    const QSize needed = window()->size().expandedTo(sizeFor(widget()->minimumSizeHint()));
    if (window()->isMaximized() || needed == window()->size())
        return;
    window()->resize(needed);
    const QRect frame = window()->geometry();
    const QPoint beyond(std::max(0, frame.right() - room().right()),
                        std::max(0, frame.bottom() - room().bottom()));
    if (!beyond.isNull())
        window()->move(window()->pos() - beyond);
}

} // namespace iceline::desktop
