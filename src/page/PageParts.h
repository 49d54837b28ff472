#pragma once

#include <string>

/// Pieces of markup that pages of several subjects share.
namespace iceline {

/// Centred cells side by side, one for each item, of which the row's own markup opens the first and closes
/// the last: "<td><center>{}</center></td>". `text` gives an item's text, which is never empty.
template <class Items, class Text>
std::string centredCells(const Items& items, Text text) {
    std::string cells;
    for (const auto& item : items)
        cells.append(cells.empty() ? "" : "</center></td><td><center>").append(text(item));
    return cells;
}

} // namespace iceline
