#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace iceline {

/// What a web server says to a request.
struct SiteAnswer {
    unsigned status = 200; ///< of HTTP
    std::string contentType = "text/plain; charset=utf-8";
    std::string body;
    std::string location; ///< where a request that asks for a folder without its slash is sent
};

/// A published site as a web server sees it. Nothing outside the folder can be reached: no "..", no drive,
/// and no link that leads out of it.
class SiteFolder {
public:
    explicit SiteFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// The answer to the target of a request, "/PStats/index.php?team=BOS". The query is left to the page. A
    /// folder shows its index.htm or index.php. Pages of PHP are plain pages and come as HTML.
    SiteAnswer answer(std::string_view target) const;

private:
    SiteAnswer notFound() const; ///< the site's own 404.html where there is one
    bool holds(const std::filesystem::path& path) const;

    std::filesystem::path folder_;
};

} // namespace iceline
