#pragma once

#include "app/SplashScreen.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QFrame;

namespace iceline::desktop {

/// The splash window with its rolling credits. Timer1 fires once and loads the main window meanwhile.
class SplashScreen : public QWidget {
    Q_OBJECT

public:
    /// `load` loads the main window.
    SplashScreen(ApplicationState& state, std::function<void()> load);

    void startTimers();

protected:
    /// A click or a key takes the credits to their end.
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void moveCredits();

    ApplicationState& state_;
    iceline::SplashScreen credits_;
    QFrame* frame1_ = nullptr;
    QFrame* frame2_ = nullptr;
    QTimer timer1_{this};
    QTimer timer2_{this};
};

} // namespace iceline::desktop
