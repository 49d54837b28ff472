#include "desktop/ScrolledPage.h"

#include <QEvent>
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

bool ScrolledPage::eventFilter(QObject* object, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(object, event);
    if (object == widget() && event->type() == QEvent::LayoutRequest) {
        const QSize needed = widget()->minimumSizeHint();
        const bool more = needed.width() > needed_.width() || needed.height() > needed_.height();
        needed_ = needed;
        if (more && window()->isVisible() && !window()->isMaximized())
            growWindow();
    }
    return handled;
}

void ScrolledPage::growWindow() {
    const QSize beside = window()->size() - size(); // a menu bar
    window()->resize(window()->size().expandedTo(sizeFor(needed_ + beside)));
    const QRect frame = window()->geometry();
    const QPoint beyond(std::max(0, frame.right() - room().right()),
                        std::max(0, frame.bottom() - room().bottom()));
    if (!beyond.isNull())
        window()->move(window()->pos() - beyond);
}

} // namespace iceline::desktop
