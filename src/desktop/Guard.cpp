#include "desktop/Guard.h"

#include "desktop/QtPlatform.h"

#include <QMessageBox>

namespace iceline::desktop {

void showFileError(QWidget* parent, const FileError& error) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Iceline Scorebook"), toQt(error.what()),
                    QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("FileError"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace iceline::desktop
