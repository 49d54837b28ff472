#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace iceline::desktop {

/// The window of that object name, null while it does not show.
inline QWidget* shownWindow(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == QLatin1String(name))
            return window;
    return nullptr;
}

/// Whoever sits at the desktop while the test's thread is inside the program: does `step` every few
/// milliseconds, and ends the program with status 99 when it does not end by itself.
class User {
public:
    explicit User(std::function<void()> step) {
        QObject::connect(&looks_, &QTimer::timeout, &looks_, std::move(step));
        looks_.start(5);
        patience_.setSingleShot(true);
        QObject::connect(&patience_, &QTimer::timeout, &patience_, [] { QApplication::exit(99); });
        patience_.start(20000);
    }

private:
    QTimer looks_;
    QTimer patience_;
};

/// The message box in front, null when there is none.
inline QMessageBox* messageBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// Presses a button in every message box, the last of these again and again, and keeps what the boxes said.
class Answers {
public:
    explicit Answers(std::deque<QMessageBox::StandardButton> buttons)
        : buttons_(std::move(buttons)), user_([this] {
              if (QMessageBox* box = messageBox()) {
                  said.push_back(box->text().toStdString());
                  press(*box);
              }
          }) {}

    std::vector<std::string> said;

private:
    void press(const QMessageBox& box) {
        const QMessageBox::StandardButton button = buttons_.front();
        if (buttons_.size() > 1)
            buttons_.pop_front();
        box.button(button)->click();
    }

    std::deque<QMessageBox::StandardButton> buttons_;
    User user_;
};

} // namespace iceline::desktop
