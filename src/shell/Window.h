#pragma once

#include <functional>

namespace iceline {

class Application;

/// A window of the program without its widgets: the procedures that clicks run and that other windows call,
/// their state, and in a plain struct what the window shows.
class Window {
public:
    explicit Window(Application& application) : app_(application) {}
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Runs when the window is loaded, before anything else of it is used.
    virtual void Form_Load() = 0;

    /// Called whenever what the window shows has changed; set by whoever shows it.
    std::function<void()> onChange;

protected:
    void changed() const {
        if (onChange)
            onChange();
    }

    Application& app_;
};

} // namespace iceline
