#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace iceline {

class Application;
class Files;

/// What a league tells of its site to feed readers, search engines and link previews: `Site Settings.json` in
/// the league's folder. A new league has no such file, and nothing of it is told.
struct SiteSettings {
    std::string name;        ///< the league's
    std::string address;     ///< of the site's root, "https://example.org/league/"; ends in "/", or ""
    std::string description; ///< a sentence or two
};

/// A setting as the file and the terminal know it.
struct SiteSetting {
    std::string_view key;
    std::string SiteSettings::*value;
};
inline constexpr std::array<SiteSetting, 3> AllSiteSettings{{
    {"name", &SiteSettings::name},
    {"address", &SiteSettings::address},
    {"description", &SiteSettings::description},
}};

/// Throws FileError for a file that is no JSON object of texts, or holds what is no setting.
SiteSettings readSiteSettings(Files& files);

/// Why a setting cannot have that value, in a sentence; none when it can.
std::optional<std::string> settingProblem(std::string_view key, const std::string& value);

/// Stores the settings and brings the site's pages that tell them up to date.
void changeSiteSettings(Application& app, const SiteSettings& settings);

/// A page of the template with what the settings tell: a preview for links that lead to it, and the feed.
/// `path` is within the site. Whatever is no page to lead to, and all pages while name or address is missing,
/// stay as they are.
std::string withPreview(const SiteSettings& settings, const std::string& path, std::string page);

/// A text as XML and HTML hold it, in an attribute, too.
std::string xmlText(std::string_view text);

} // namespace iceline
