#include "desktop/WindowMakers.h"

#include "desktop/StatExtractorWindow.h"

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
    case WindowId::StatExtractor:
        return make<StatExtractorWindow, StatExtractor>;
    default:
        return nullptr;
    }
}

} // namespace iceline::desktop
