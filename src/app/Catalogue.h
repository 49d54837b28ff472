#pragma once

#include "shell/Windows.h"

#include <optional>
#include <string_view>

namespace iceline {

/// The catalogue of the main window: all windows, in the order of WindowId.
WindowCatalogue windowCatalogue();
const CatalogueRow& catalogueRow(WindowId id);

/// The window of that name ("PlayoffRankings"), to the letter.
std::optional<WindowId> windowByName(std::string_view name);

} // namespace iceline
