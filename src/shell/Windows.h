#pragma once

#include "shell/Window.h"

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

namespace iceline {

class Application;

/// The fifteen windows of the catalogue, in its order.
enum class WindowId {
    StatExtractor,
    PlayerStats,
    TeamStats,
    Standings,
    Rankings,
    PlayerProfiles,
    Playoffs,
    PlayoffPlayerStats,
    PlayoffTeamStats,
    PlayoffRankings,
    PlayoffPlayerProfiles,
    CoachStats,
    AllTimeRecords,
    PlayoffAllTimeRecords,
    Options
};
inline constexpr std::size_t WindowCount = static_cast<std::size_t>(WindowId::Options) + 1;

/// A table about the windows: a row for each, whose `id` is its place.
template <class Row>
using WindowTable = std::array<Row, WindowCount>;

/// Whether a table has a row for each window, in the order of WindowId: none is missing, double or misplaced.
/// Every table asserts this when it is compiled.
template <class Row>
constexpr bool isComplete(const WindowTable<Row>& table) {
    for (std::size_t i = 0; i < table.size(); ++i)
        if (static_cast<std::size_t>(table[i].id) != i)
            return false;
    return true;
}

template <class Row>
constexpr const Row& rowOf(const WindowTable<Row>& table, WindowId id) {
    return table[static_cast<std::size_t>(id)];
}

/// A row of the catalogue of windows.
struct CatalogueRow {
    WindowId id;
    std::string_view entry; ///< "Stat Extractor"
    std::string_view name;  ///< "StatExtractor"
    std::unique_ptr<Window> (*make)(Application&);
};

using WindowCatalogue = std::span<const CatalogueRow, WindowCount>;

/// Owns the window objects. There is at most one of each; using one that is not loaded loads it first, which
/// runs its whole load sequence.
class Windows {
public:
    /// `catalogue` has a row for each WindowId, in that order.
    Windows(Application& application, WindowCatalogue catalogue) : app_(application), catalogue_(catalogue) {}

    WindowCatalogue catalogue() const { return catalogue_; }
    const CatalogueRow& row(WindowId id) const { return catalogue_[static_cast<std::size_t>(id)]; }

    /// The window, loaded. When its load throws, the window is not loaded.
    Window& use(WindowId id);

    /// The window as the user opens it. One that other windows have loaded and nobody sees is loaded again,
    /// so that it shows the files as they are now; one that is open stays as it is.
    Window& open(WindowId id);

    bool isLoaded(WindowId id) const { return slot(id) != nullptr; }
    bool isOpen(WindowId id) const { return isLoaded(id) && open_[static_cast<std::size_t>(id)]; }

    /// Unloads the window; nothing happens when it is not loaded.
    void unload(WindowId id);
    void unloadAll();

    /// Has every open window show the league's files as they are now. Throws the first FileError, when all
    /// have tried.
    void renewOpen();

    /// Called before an open window is unloaded; set by whoever shows windows.
    std::function<void(WindowId)> onUnload;

private:
    friend class OpenWindowsAside;

    std::unique_ptr<Window>& slot(WindowId id) { return windows_[static_cast<std::size_t>(id)]; }
    const std::unique_ptr<Window>& slot(WindowId id) const { return windows_[static_cast<std::size_t>(id)]; }

    Application& app_;
    WindowCatalogue catalogue_;
    std::array<std::unique_ptr<Window>, WindowCount> windows_;
    std::array<bool, WindowCount> open_{};
};

/// While it lives, the open windows of a list are out of the way: they are not loaded, so that using them
/// makes others, which nobody sees and which go at its end.
class OpenWindowsAside {
public:
    OpenWindowsAside(Windows& windows, std::span<const WindowId> ids);
    ~OpenWindowsAside();
    OpenWindowsAside(const OpenWindowsAside&) = delete;
    OpenWindowsAside& operator=(const OpenWindowsAside&) = delete;

private:
    Windows& windows_;
    std::array<std::unique_ptr<Window>, WindowCount> aside_;
};

} // namespace iceline
