#pragma once

#include "desktop/Guard.h"
#include "desktop/ScrolledPage.h"
#include "shell/Application.h"
#include "shell/Windows.h"

#include <QWidget>

namespace iceline::desktop {

/// Base of the fifteen windows. A window lays out its controls, forwards clicks to the procedures of its
/// window object and redraws from that object's content when told that it changed; it works no figure out.
/// Every control has its given name as object name, an element of a control array as "Team1Goals(3)".
class LeagueWindow : public QWidget {
    Q_OBJECT

public:
    LeagueWindow(Application& application, WindowId id);

    WindowId id() const { return id_; }

    /// Opens in the middle of the screen, and no larger than that.
    void showFirst();

protected:
    /// What the controls are laid out in.
    QWidget* page() const { return page_->widget(); }

    /// Shows the window object's content as it is now.
    virtual void refresh() = 0;

    /// To be called at the end of a window's constructor: draws it and draws it again at every change.
    void follow(Window& object);

    /// Runs a procedure of the window object and shows what goes wrong with a file as a message. When it has
    /// changed the league, all open windows show that.
    template <class Procedure>
    void run(Procedure procedure) {
        const int committed = app_.operationsCommitted();
        guarded(this, procedure);
        if (app_.operationsCommitted() != committed)
            renewWindows();
    }

    void closeEvent(QCloseEvent* event) override;

    Application& app_;

private:
    void renewWindows();

    WindowId id_;
    ScrolledPage* page_;
};

} // namespace iceline::desktop
