#pragma once

#include "files/Files.h"

#include <string>
#include <vector>

namespace iceline {

/// The site of a season that is over, in `Seasons/<name>` of the site. It has pages, scripts and styles of
/// its own as they were; pictures are those of the site around it, where it links to them, and each page says
/// which season it is of.
class OldSeasonSite {
public:
    /// `files` hold the site as the season leaves it.
    OldSeasonSite(Files& files, const std::string& name);

    /// Its files, by their paths within the site.
    std::vector<std::string> paths() const;

    /// One of them, made of the site's file of that path.
    std::string text(const std::string& path) const;

private:
    bool isShared(const std::string& path) const;
    std::string withLinks(std::string text) const;

    Files& files_;
    std::string name_;
    std::string address_; ///< of the site, as pages hold it; "" when it is not told
    std::vector<std::string> shared_;
};

/// Writes the page that leads to the season now and to those that are over, and the table of these.
void writeSeasons(Files& files);

/// The same on a site that has that page.
void renewSeasons(Files& files);

} // namespace iceline
