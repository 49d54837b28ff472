#include "desktop/MainMenu.h"

#include "desktop/Guard.h"

#include <QAction>

namespace iceline::desktop {

void MainMenu::add(QMenu& menu, const QString& text, const QKeySequence& key,
                   std::function<void()> procedure) {
    QAction* entry = menu.addAction(text);
    entry->setShortcut(key);
    entry->setShortcutContext(Qt::ApplicationShortcut);
    connect(entry, &QAction::triggered, this,
            [this, procedure = std::move(procedure)] { guarded(window(), procedure); });
}

} // namespace iceline::desktop
