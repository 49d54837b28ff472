#include "desktop/LeagueWindow.h"

#include "app/Catalogue.h"
#include "desktop/QtPlatform.h"

#include <QCloseEvent>
#include <QShortcut>

namespace iceline::desktop {

LeagueWindow::LeagueWindow(Application& application, WindowId id)
    : app_(application), id_(id), page_(new ScrolledPage(this)) {
    const CatalogueRow& row = catalogueRow(id);
    setObjectName(toQt(row.name));
    setWindowTitle(toQt(row.entry));
    for (const auto& key : {QStringLiteral("Esc"), QStringLiteral("Ctrl+W")})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
}

void LeagueWindow::showFirst() {
    page_->fitWindow();
    show();
}

void LeagueWindow::follow(Window& object) {
    refresh();
    object.onChange = [this] { refresh(); };
}

void LeagueWindow::renewWindows() {
    guarded(this, [this] { app_.windows().renewOpen(); });
}

void LeagueWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    app_.windows().unload(id_);
}

} // namespace iceline::desktop
