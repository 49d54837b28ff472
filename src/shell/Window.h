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

    /// Shows the league's files as they are now; what the user has chosen stays. Writes nothing and leaves
    /// what the windows share as it was. Throws FileError.
    void renew();

    /// Called whenever what the window shows has changed; set by whoever shows it.
    std::function<void()> onChange;

protected:
    /// Reads again what the window shows. What it does to the shared state does not last.
    virtual void readAgain() {}

    void changed() const {
        if (onChange)
            onChange();
    }

    Application& app_;
};

} // namespace iceline
