#include "desktop/Style.h"

#include "desktop/Pictures.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

namespace iceline::desktop {

namespace {

QPalette lightPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xf3, 0xf6, 0xf9));
    palette.setColor(QPalette::WindowText, QColor(0x17, 0x21, 0x2b));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf0, 0xf4, 0xf8));
    palette.setColor(QPalette::Text, QColor(0x17, 0x21, 0x2b));
    palette.setColor(QPalette::Button, QColor(0xe6, 0xec, 0xf2));
    palette.setColor(QPalette::ButtonText, QColor(0x17, 0x21, 0x2b));
    palette.setColor(QPalette::Highlight, QColor(0x0b, 0x5c, 0xad));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8a, 0x96, 0xa3));
    return palette;
}

} // namespace

void applyStyle(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
    QApplication::setWindowIcon(QIcon(pictures::named("iceline")));
    QFile sheet(QStringLiteral(":/desktop/style.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

} // namespace iceline::desktop
