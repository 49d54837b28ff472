#include "desktop/QtPlatform.h"

#include "desktop/ProgressWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QSettings>

#include <algorithm>
#include <iostream>

namespace iceline::desktop {

namespace {

using Button = QMessageBox::StandardButton;

constexpr qint64 UnseenMilliseconds = 300; ///< a run that is shorter shows no progress

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

/// The answer of a box that was closed without a button.
Answer closedAnswer(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return Answer::Cancel;
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

Answer answerOf(int button, Buttons buttons) {
    switch (button) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Yes:
        return Answer::Yes;
    default:
        return closedAnswer(buttons);
    }
}

/// The filters as Qt takes them: it hides the last pair of brackets, which holds the pattern, and shows the
/// caption whole. To Qt "*.*" is a name with a dot in it.
QString filterText(const std::vector<FileFilter>& filters) {
    QStringList entries;
    for (const FileFilter& filter : filters) {
        const QString pattern = filter.pattern == "*.*" ? QStringLiteral("*") : toQt(filter.pattern);
        entries << toQt(filter.caption) + QStringLiteral(" (") + pattern + QLatin1Char(')');
    }
    return entries.join(QStringLiteral(";;"));
}

/// Where the next file dialog begins, in the user's settings.
constexpr QLatin1String GamesFolder("folders/games");

/// What a file dialog has ended with; the next one begins in `folder`.
std::optional<std::string> chosen(const QString& path, const QString& folder) {
    if (path.isEmpty())
        return std::nullopt;
    QSettings().setValue(GamesFolder, folder);
    return fromQt(path);
}

} // namespace

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) {
    return text.toStdString();
}

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() = default;

QWidget* QtPlatform::windowInFront() const {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    if (runsFrom_ && runsFrom_->isVisible())
        return runsFrom_;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto visible = std::ranges::find_if(windows, &QWidget::isVisible);
    return visible == windows.end() ? nullptr : *visible;
}

Answer QtPlatform::ask(const Message& message) {
    if (programEnds_) {
        std::cerr << message.text << std::endl;
        return closedAnswer(message.buttons);
    }
    QMessageBox box(windowInFront());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(message.buttons == Buttons::YesNo ? QMessageBox::Question : QMessageBox::Information);
    box.setWindowTitle(toQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(message.text));
    box.setStandardButtons(qtButtons(message.buttons));
    box.setDefaultButton(defaultButton(message.buttons));
    return answerOf(box.exec(), message.buttons);
}

std::optional<std::string> QtPlatform::chooseFile(const std::string& title,
                                                  const std::vector<FileFilter>& filters) {
    const QString path =
        QFileDialog::getOpenFileName(windowInFront(), toQt(title), QSettings().value(GamesFolder).toString(),
                                     filterText(filters), nullptr, QFileDialog::HideNameFilterDetails);
    return chosen(path, QFileInfo(path).absolutePath());
}

std::optional<std::string> QtPlatform::chooseFolder(const std::string& title) {
    const QString path = QFileDialog::getExistingDirectory(windowInFront(), toQt(title),
                                                           QSettings().value(GamesFolder).toString());
    return chosen(path, path);
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
        runsFrom_ = windowInFront();
        progress_ = std::make_unique<ProgressWindow>(progress, runsFrom_);
        sinceBegin_.start();
    }
    progress_->setProgress(progress);
    if (sinceBegin_.elapsed() >= UnseenMilliseconds) {
        progress_->show();
        QApplication::processEvents();
    }
    return !progress_->isCancelled() && !runStopped_ && !programEnds_;
}

void QtPlatform::endProgress() {
    progress_.reset();
    runStopped_ = false;
}

void QtPlatform::endProgram(int status) {
    programEnds_ = true;
    QApplication::exit(status);
}

} // namespace iceline::desktop
