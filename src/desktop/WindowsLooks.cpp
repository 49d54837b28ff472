#include "desktop/WindowsLooks.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <dwmapi.h>

namespace iceline::desktop {

namespace {

/// DWMWA_USE_IMMERSIVE_DARK_MODE of Windows 10 (20H1) and later, which an older Windows refuses.
constexpr DWORD DarkTitleBar = 20;

bool isDark(const QWidget& window) {
    const QPalette palette = window.palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Looks at each window that comes up or takes other colours.
class TitleBars : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* window = qobject_cast<QWidget*>(object);
        const bool shows = event->type() == QEvent::Show || event->type() == QEvent::PaletteChange;
        if (shows && window && window->isWindow() && window->testAttribute(Qt::WA_WState_Created)) {
            const BOOL dark = isDark(*window);
            DwmSetWindowAttribute(reinterpret_cast<HWND>(window->winId()), DarkTitleBar, &dark, sizeof dark);
        }
        return false;
    }
};

} // namespace

void applyWindowsLooks(QApplication& application) {
    QFont font = QApplication::font();
    font.setFamilies({font.family(), QStringLiteral("Segoe UI"), QStringLiteral("Arial"),
                      QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    QApplication::setFont(font);
    for (const char* kind : {"QAbstractItemView", "QMenu", "QMenuBar", "QMessageBox",
                             "QTipLabel"}) // have their own of the system
        QApplication::setFont(font, kind);
    application.installEventFilter(new TitleBars(&application));
}

} // namespace iceline::desktop
