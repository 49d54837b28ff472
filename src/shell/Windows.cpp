#include "shell/Windows.h"

#include "shell/Application.h"

namespace iceline {

Window& Windows::use(WindowId id) {
    std::unique_ptr<Window>& window = slot(id);
    if (!window) {
        window = row(id).make(app_);
        try {
            window->Form_Load();
        } catch (...) {
            window.reset();
            throw;
        }
    }
    return *window;
}

Window& Windows::open(WindowId id) {
    if (!isOpen(id))
        unload(id);
    Window& window = use(id);
    open_[static_cast<std::size_t>(id)] = true;
    return window;
}

void Windows::unload(WindowId id) {
    if (!isLoaded(id))
        return;
    if (onUnload)
        onUnload(id);
    slot(id).reset();
    open_[static_cast<std::size_t>(id)] = false;
}

void Windows::unloadAll() {
    for (const CatalogueRow& row : catalogue_)
        unload(row.id);
}

} // namespace iceline
