#include "desktop/HeadLine.h"

#include <QPainter>
#include <QRegularExpression>

namespace iceline::desktop {

HeadLine::HeadLine(const char* objectName, const QString& heads, QWidget* parent) : QLabel(heads, parent) {
    setObjectName(QLatin1String(objectName));
    setTextFormat(Qt::PlainText);
    setProperty("role", QStringLiteral("head"));
}

QSize HeadLine::sizeHint() const {
    return {1, fontMetrics().height() + 4};
}

void HeadLine::paintEvent(QPaintEvent*) {
    static const QRegularExpression TwoBlanks(QStringLiteral(" {2,}"));
    const QStringList heads = text().split(TwoBlanks, Qt::SkipEmptyParts);
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    auto head = heads.begin();
    for (const QLabel* column : columns_) {
        if (head == heads.end())
            break;
        const int left = mapFromGlobal(column->mapToGlobal(QPoint())).x();
        painter.drawText(QRect(left, 0, column->width(), height()),
                         static_cast<int>(column->alignment()) | Qt::TextDontClip, *head++);
    }
}

} // namespace iceline::desktop
