#pragma once

#include <QKeySequence>
#include <QMenuBar>

#include <functional>

namespace iceline::desktop {

/// The menu bar of the main window. The keys of its entries work in every window of the program.
class MainMenu : public QMenuBar {
    Q_OBJECT

public:
    using QMenuBar::QMenuBar;

    /// Adds an entry that runs `procedure` and shows what goes wrong in it.
    void add(QMenu& menu, const QString& text, const QKeySequence& key, std::function<void()> procedure);
};

} // namespace iceline::desktop
