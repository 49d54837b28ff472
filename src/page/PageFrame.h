#pragma once

#include "files/Files.h"
#include "page/PageText.h"

#include <string>
#include <string_view>

namespace iceline {

/// What all pages open with. The standard page is one in the site's root; pages that open their style link,
/// font and centre tags in a variation of their own say so.
struct PageFrame {
    std::string title;
    std::string prefix = "./"; ///< path to the site's root: "./", "../" or "../../"
    std::string styleSheet = prefix + "styles.css";
    std::string opening = "<font face = arial size = 2><center>"; ///< after the body tag
    std::string start = "<html>";                                 ///< before the head tag

    /// Head, body tag and navigation bar, a line each.
    std::string text() const;
};

/// The bar of ten links under the prefix: "<p>…</p>".
std::string navigationBar(std::string_view prefix);

/// The header image in its usual form. `folder` is the path to the images: "Headers/", "../Headers/".
std::string headerImage(std::string_view folder, std::string_view name);

/// Puts a page into the site (`path` relative to the league folder). A page whose text is what it was is left
/// alone, date and all, so that an upload sends only what changed.
void writePage(Files& files, const std::string& path, std::string_view text);

} // namespace iceline
