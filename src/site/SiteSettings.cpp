#include "site/SiteSettings.h"

#include "files/FileError.h"
#include "page/PageNames.h"
#include "shell/Application.h"
#include "site/SiteTemplate.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <fmt/core.h>
#include <nlohmann/json.hpp>

namespace iceline {

namespace {

[[noreturn]] void reject(const std::string& wrong) {
    throw FileError::about(paths::SiteSettings, wrong);
}

/// The text between two others in a page, "" when it is not there.
std::string_view between(std::string_view page, std::string_view begin, std::string_view end) {
    const std::size_t from = page.find(begin);
    if (from == std::string_view::npos)
        return "";
    page.remove_prefix(from + begin.size());
    return page.substr(0, std::min(page.find(end), page.size()));
}

} // namespace

SiteSettings readSiteSettings(Files& files) {
    SiteSettings settings;
    if (!files.isFile(paths::SiteSettings))
        return settings;
    const auto json = nlohmann::json::parse(files.read(paths::SiteSettings), nullptr, false);
    if (!json.is_object())
        reject("is no JSON object");
    for (const auto& [key, value] : json.items()) {
        const auto setting = std::ranges::find(AllSiteSettings, key, &SiteSetting::key);
        if (setting == AllSiteSettings.end())
            reject("there is no setting '" + key + "'");
        if (!value.is_string())
            reject("the setting '" + key + "' is no text");
        settings.*setting->value = value.get<std::string>();
        if (const auto problem = settingProblem(key, settings.*setting->value))
            reject(*problem);
    }
    return settings;
}

std::optional<std::string> settingProblem(std::string_view key, const std::string& value) {
    if (std::ranges::any_of(value, [](char c) { return static_cast<unsigned char>(c) < 0x20; }))
        return fmt::format("the {} must be one line of text", key);
    const bool isWeb = value.starts_with("https://") || value.starts_with("http://");
    if (key != "address" || value.empty() ||
        (isWeb && value.ends_with('/') && value.find_first_of(" \"<>?#") == std::string::npos))
        return std::nullopt;
    return "the address must begin with https:// or http:// and end with /, as in "
           "https://example.org/league/";
}

void changeSiteSettings(Application& app, const SiteSettings& settings) {
    nlohmann::ordered_json json;
    for (const SiteSetting& setting : AllSiteSettings)
        json[std::string(setting.key)] = settings.*setting.value;
    Operation operation(app);
    app.files().write(paths::SiteSettings,
                      json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n");
    bringSiteUpToDate(app.siteTemplate(), app.files(), RemovedFiles::StayAway);
    operation.commit();
}

std::string withPreview(const SiteSettings& settings, const std::string& path, std::string page) {
    constexpr std::string_view HeadEnd = "</head>";
    const std::size_t end = page.find(HeadEnd);
    const std::string_view description = between(page, "<meta name=\"description\" content=\"", "\"");
    if (path == "404.html" || settings.name.empty() || settings.address.empty() || description.empty() ||
        end == std::string::npos)
        return page;
    const std::string address = xmlText(settings.address);
    const std::string name = xmlText(settings.name);
    const bool isHome = path == "index.html";
    const std::string about =
        isHome && !settings.description.empty() ? xmlText(settings.description) : std::string(description);
    const std::string title = isHome ? name : std::string(between(page, "<title>", "</title>"));
    page.insert(end, fmt::format("<meta property=\"og:type\" content=\"website\">\n"
                                 "<meta property=\"og:site_name\" content=\"{}\">\n"
                                 "<meta property=\"og:title\" content=\"{}\">\n"
                                 "<meta property=\"og:description\" content=\"{}\">\n"
                                 "<meta property=\"og:url\" content=\"{}{}\">\n"
                                 "<meta property=\"og:image\" content=\"{}preview.png\">\n"
                                 "<link rel=\"alternate\" type=\"application/atom+xml\" title=\"{}\" "
                                 "href=\"{}feed.xml\">\n",
                                 name, title, about, address, isHome ? "" : path, address, name, address));
    return page;
}

std::string xmlText(std::string_view text) {
    std::string result;
    for (const char c : shown(text))
        result += c == '"' ? "&quot;" : std::string(1, c);
    return result;
}

} // namespace iceline
