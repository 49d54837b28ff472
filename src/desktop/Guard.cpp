#include "desktop/Guard.h"

#include "desktop/QtPlatform.h"
#include "shell/ErrorText.h"

#include <QMessageBox>

namespace iceline::desktop {

void showError(QWidget* parent, const std::exception& error) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Iceline Scorebook"), toQt(errorText(error)),
                    QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("ErrorBox"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace iceline::desktop
