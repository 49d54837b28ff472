#include "desktop/ProgressWindow.h"

#include "desktop/QtPlatform.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace iceline::desktop {

ProgressWindow::ProgressWindow(const Progress& progress, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), item_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("Progress"));
    setWindowTitle(toQt(progress.title));
    setWindowModality(Qt::ApplicationModal);
    item_->setTextFormat(Qt::PlainText);
    bar_->setMinimumWidth(420);
    auto* column = new QVBoxLayout(this);
    column->addWidget(item_);
    column->addWidget(bar_);
    if (progress.cancellable)
        addCancelButton();
    setProgress(progress);
}

void ProgressWindow::addCancelButton() {
    auto* cancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("Cancel"));
    cancel->setAutoDefault(false);
    cancel->setFocusPolicy(Qt::NoFocus);
    connect(cancel, &QPushButton::clicked, this, [this, cancel] {
        cancelled_ = true;
        cancel->setEnabled(false);
    });
    layout()->addWidget(cancel);
    layout()->setAlignment(cancel, Qt::AlignRight);
}

void ProgressWindow::setProgress(const Progress& progress) {
    item_->setText(toQt(progress.item));
    bar_->setMaximum(progress.total);
    bar_->setValue(progress.done);
}

} // namespace iceline::desktop
