#include "desktop/QtPlatform.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QRandomGenerator>

namespace iceline::desktop {

namespace {

using Button = QMessageBox::StandardButton;

QMessageBox::StandardButtons qtButtons(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

/// The button that Return presses: the one that changes nothing, where there is a choice of Yes and No.
Button defaultButton(Buttons buttons) {
    return buttons == Buttons::YesNo ? QMessageBox::No : QMessageBox::Ok;
}

Answer answerOf(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return Answer::Cancel;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Ok;
    }
}

QString filterText(const std::vector<FileFilter>& filters) {
    QStringList entries;
    for (const FileFilter& filter : filters) {
        const QString name = toQt(filter.caption).section(QLatin1Char('('), 0, 0).trimmed();
        const QString pattern = filter.pattern == "*.*" ? QStringLiteral("*") : toQt(filter.pattern);
        entries << name + QStringLiteral(" (") + pattern + QLatin1Char(')');
    }
    return entries.join(QStringLiteral(";;"));
}

std::optional<std::string> chosen(const QString& path) {
    if (path.isEmpty())
        return std::nullopt;
    return fromQt(path);
}

} // namespace

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) {
    return text.toStdString();
}

QtPlatform::~QtPlatform() {
    delete progress_;
}

Answer QtPlatform::ask(const Message& message) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(message.buttons == Buttons::YesNo ? QMessageBox::Question : QMessageBox::Information);
    box.setWindowTitle(toQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(message.text));
    box.setStandardButtons(qtButtons(message.buttons));
    box.setDefaultButton(defaultButton(message.buttons));
    return answerOf(box.exec());
}

std::optional<std::string> QtPlatform::chooseFile(const std::string& title,
                                                  const std::vector<FileFilter>& filters) {
    return chosen(
        QFileDialog::getOpenFileName(QApplication::activeWindow(), toQt(title), {}, filterText(filters)));
}

std::optional<std::string> QtPlatform::chooseFolder(const std::string& title) {
    return chosen(QFileDialog::getExistingDirectory(QApplication::activeWindow(), toQt(title)));
}

void QtPlatform::setBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

double QtPlatform::random() {
    return QRandomGenerator::global()->generateDouble();
}

bool QtPlatform::showProgress(const Progress& progress) {
    if (!progress_) {
        progress_ = new QProgressDialog(QApplication::activeWindow());
        progress_->setObjectName(QStringLiteral("Progress"));
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setMinimumDuration(300);
        progress_->setMinimumWidth(420);
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        progress_->setWindowTitle(toQt(progress.title));
        if (!progress.cancellable)
            progress_->setCancelButton(nullptr);
    }
    progress_->setMaximum(progress.total);
    progress_->setLabelText(toQt(progress.item));
    progress_->setValue(progress.done);
    return !progress_->wasCanceled();
}

void QtPlatform::endProgress() {
    delete progress_;
}

} // namespace iceline::desktop
