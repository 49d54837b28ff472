#include "shell/Windows.h"

#include "files/FileError.h"
#include "shell/Application.h"

#include <exception>

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
    if (onUnload && isOpen(id))
        onUnload(id);
    slot(id).reset();
    open_[static_cast<std::size_t>(id)] = false;
}

void Windows::renewOpen() {
    std::exception_ptr error;
    for (const CatalogueRow& row : catalogue_) {
        try {
            if (isOpen(row.id))
                slot(row.id)->renew();
        } catch (const FileError&) {
            error = error ? error : std::current_exception();
        }
    }
    if (error)
        std::rethrow_exception(error);
}

void Windows::unloadAll() {
    for (const CatalogueRow& row : catalogue_)
        unload(row.id);
}

OpenWindowsAside::OpenWindowsAside(Windows& windows, std::span<const WindowId> ids) : windows_(windows) {
    for (const WindowId id : ids) {
        if (!windows_.isOpen(id))
            continue;
        aside_[static_cast<std::size_t>(id)] = std::move(windows_.slot(id));
        windows_.open_[static_cast<std::size_t>(id)] = false;
    }
}

OpenWindowsAside::~OpenWindowsAside() {
    for (std::size_t i = 0; i < WindowCount; ++i) {
        if (!aside_[i])
            continue;
        windows_.windows_[i] = std::move(aside_[i]);
        windows_.open_[i] = true;
    }
}

} // namespace iceline
