#include "desktop/GameReportWindow.h"

#include "desktop/Controls.h"
#include "desktop/GameReportView.h"
#include "desktop/ScrolledPage.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace iceline::desktop {

GameReportWindow::GameReportWindow(const QString& title, const GameReport& report, QWidget* parent)
    : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("GameReport"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    auto* page = new ScrolledPage(this);
    auto* rows = new QVBoxLayout(page->widget());
    auto* view = new GameReportView(this);
    rows->addWidget(view, 1);
    rows->addWidget(exitButton("Close", this), 0, Qt::AlignRight);
    view->show(report);
    for (const auto& key : {QStringLiteral("Esc"), QStringLiteral("Ctrl+W")})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    page->fitWindow();
}

} // namespace iceline::desktop
