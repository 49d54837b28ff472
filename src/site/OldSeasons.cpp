#include "site/OldSeasons.h"

#include "files/FileTree.h"
#include "page/DataTable.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "site/SiteSettings.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace iceline {

namespace {

constexpr const char* SeasonsPage = "Seasons.htm";

/// From the site of an old season to the site around it.
constexpr std::string_view Up = "../../";

template <std::size_t Count>
bool endsInOneOf(std::string_view name, const std::array<std::string_view, Count>& endings) {
    return std::ranges::any_of(endings, [&](std::string_view ending) { return name.ends_with(ending); });
}

bool isPicture(std::string_view name) {
    static constexpr std::array<std::string_view, 6> Endings{".gif", ".png", ".ico", ".svg", ".jpg", ".jpeg"};
    return endsInOneOf(name, Endings);
}

/// Whether a file has links.
bool isText(std::string_view name) {
    static constexpr std::array<std::string_view, 5> Endings{".htm", ".html", ".php", ".css", ".js"};
    return endsInOneOf(name, Endings);
}

bool holdsPicturesAlone(Files& files, const std::string& folder) {
    const std::vector<std::string> names = files.filesIn(folder);
    return !names.empty() && std::ranges::all_of(names, isPicture) && files.foldersIn(folder).empty();
}

/// What the site of a season links to and has not got itself: files, and folders with a "/".
std::vector<std::string> sharedNames(Files& files) {
    std::vector<std::string> names{SeasonsPage, "feed.xml"};
    for (const std::string& name : files.filesIn(paths::WebRoot))
        if (isPicture(name))
            names.push_back(name);
    for (const std::string& name : files.foldersIn(paths::WebRoot))
        if (holdsPicturesAlone(files, paths::page(name)))
            names.push_back(name + "/");
    return names;
}

/// What the host alone reads is not the season's.
bool isHidden(const std::string& path) {
    return path.starts_with('.') || path.find("/.") != std::string::npos || path == "sitemap.xml";
}

/// Whether a link may begin a name at that place of a text.
bool beginsName(const std::string& text, std::size_t at) {
    const char before = at == 0 ? ' ' : text[at - 1];
    return std::isalnum(static_cast<unsigned char>(before)) == 0 &&
           std::string_view("_-<").find(before) == std::string_view::npos;
}

std::string replaced(std::string text, std::string_view what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

/// What a page says first.
std::string withSeason(std::string page, const std::string& path, const std::string& name) {
    std::string toRoot(Up);
    for (auto level = std::ranges::count(path, '/'); level > 0; --level)
        toRoot += "../";
    const std::size_t body = page.find("<body");
    const std::size_t end = page.find('>', body);
    if (body != std::string::npos && end != std::string::npos)
        page.insert(end + 1,
                    markup(R"(<p class="season"><b>Season {}</b> <a href="{}{}">All seasons</a></p>)",
                           shown(name), toRoot, SeasonsPage));
    return page;
}

} // namespace

OldSeasonSite::OldSeasonSite(Files& files, const std::string& name)
    : files_(files), name_(name), address_(xmlText(readSiteSettings(files).address)),
      shared_(sharedNames(files)) {}

bool OldSeasonSite::isShared(const std::string& path) const {
    return std::ranges::any_of(shared_, [&](const std::string& name) {
        return path == name || (name.ends_with('/') && path.starts_with(name));
    });
}

std::vector<std::string> OldSeasonSite::paths() const {
    std::vector<std::string> own = filesUnder(files_, paths::WebRoot);
    std::erase_if(own, [this](const std::string& path) {
        return isShared(path) || isHidden(path) || path.starts_with(paths::Seasons + "/");
    });
    return own;
}

std::string OldSeasonSite::text(const std::string& path) const {
    std::string text = files_.read(paths::page(path));
    if (!isText(path))
        return text;
    text = withLinks(std::move(text));
    return path.ends_with(".htm") ? withSeason(std::move(text), path, name_) : text;
}

std::string OldSeasonSite::withLinks(std::string text) const {
    if (!address_.empty())
        text = replaced(std::move(text), address_, address_ + linkText(paths::keptSeason(name_)) + "/");
    for (const std::string& name : shared_)
        for (std::size_t at = text.find(name); at != std::string::npos;
             at = text.find(name, at + name.size()))
            if (beginsName(text, at)) {
                text.insert(at, Up);
                at += Up.size();
            }
    return text;
}

void writeSeasons(Files& files) {
    const std::string folder = paths::page(paths::Seasons);
    PageText page;
    page.add(PageFrame{"Rinkstar - Seasons"}.text());
    page.line("<h1>Seasons</h1>");
    page.line(R"(<table border = 1><tr><th>Season</th></tr>)");
    page.line(R"(<tr><td><a href="./index.htm"><b>This season</b></a></td></tr>)");
    DataTable table{"name", "page"};
    if (files.isFolder(folder))
        for (const std::string& name : files.foldersIn(folder)) {
            const std::string link = linkText(paths::keptSeason(name)) + "/index.htm";
            page.line(R"(<tr><td><a href="./{}"><b>{}</b></a></td></tr>)", link, shown(name));
            table.text(name).text(link).endRow();
        }
    page.line("</table></center></font></body></html>");
    writePage(files, paths::page(SeasonsPage), page.text());
    writeData(files, "seasons", table);
}

void renewSeasons(Files& files) {
    if (files.isFile(paths::page(SeasonsPage)))
        writeSeasons(files);
}

} // namespace iceline
