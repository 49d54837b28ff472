#include "shell/Window.h"

#include "shell/Application.h"

namespace iceline {

namespace {

/// The shared state is after its life as it was before.
class StateKept {
public:
    explicit StateKept(ApplicationState& state) : state_(state), before_(state) {}
    ~StateKept() { state_ = std::move(before_); }
    StateKept(const StateKept&) = delete;
    StateKept& operator=(const StateKept&) = delete;

private:
    ApplicationState& state_;
    ApplicationState before_;
};

} // namespace

void Window::renew() {
    const StateKept kept(app_.state);
    readAgain();
    changed();
}

} // namespace iceline
