#include "desktop/WindowMakers.h"

#include "desktop/LeagueWindow.h"

namespace iceline::desktop {

namespace {

/// Maker of a window class that shows objects of the class Object.
template <class QtWindow, class Object>
LeagueWindow* make(Application& app, WindowId id, Window& object) {
    return new QtWindow(app, id, static_cast<Object&>(object));
}

} // namespace

WindowMaker windowMaker(WindowId id) {
    switch (id) {
    default:
        return nullptr;
    }
}

} // namespace iceline::desktop
