#pragma once

#include "shell/Window.h"
#include "store/LeaguePaths.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace iceline {

class Application;
class Standings;
class StatExtractor;
class Rankings;

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
inline constexpr std::size_t WindowCount = 15;

/// A row of the catalogue.
struct CatalogueRow {
    WindowId id;
    std::string_view entry; ///< "Stat Extractor"
    std::string_view name;  ///< "StatExtractor"
    std::unique_ptr<Window> (*make)(Application&);
};

/// The catalogue of the main window.
std::span<const CatalogueRow> windowCatalogue();
const CatalogueRow& catalogueRow(WindowId id);

/// The window of that name ("PlayoffRankings"), to the letter.
std::optional<WindowId> windowByName(std::string_view name);

/// Owns the window objects. There is at most one of each; using one that is not loaded loads it first, which
/// runs its whole load sequence.
class Windows {
public:
    explicit Windows(Application& application) : app_(application) {}

    /// The window, loaded. When its load throws, the window is not loaded.
    Window& use(WindowId id);

    /// The window as the user opens it. One that other windows have loaded and nobody sees is loaded anew, so
    /// that it shows the files as they are now; one that is open stays as it is.
    Window& open(WindowId id);

    bool isLoaded(WindowId id) const { return slot(id) != nullptr; }
    bool isOpen(WindowId id) const { return isLoaded(id) && open_[static_cast<std::size_t>(id)]; }

    /// Unloads the window; nothing happens when it is not loaded.
    void unload(WindowId id);
    void unloadAll();

    StatExtractor& statExtractor();
    Standings& standings();
    Rankings& rankings(PartOfYear part);

    /// Called before a window is unloaded; set by whoever shows windows.
    std::function<void(WindowId)> onUnload;

private:
    std::unique_ptr<Window>& slot(WindowId id) { return windows_[static_cast<std::size_t>(id)]; }
    const std::unique_ptr<Window>& slot(WindowId id) const { return windows_[static_cast<std::size_t>(id)]; }

    Application& app_;
    std::array<std::unique_ptr<Window>, WindowCount> windows_;
    std::array<bool, WindowCount> open_{};
};

} // namespace iceline
