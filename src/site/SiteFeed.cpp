#include "site/SiteFeed.h"

#include "files/FileTree.h"
#include "league/Numbers.h"
#include "league/TeamTable.h"
#include "page/BoxScoreList.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "shell/LoggedChange.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace iceline {

namespace {

constexpr std::ptrdiff_t GamesInFeed = 20;

/// The times of the games in a feed, by their entries' ids.
std::map<std::string, std::string> timesIn(std::string_view feed) {
    constexpr std::string_view Id = "<entry>\n<id>";
    constexpr std::string_view Updated = "</id>\n<updated>";
    std::map<std::string, std::string> times;
    for (std::size_t at = feed.find(Id); at != std::string_view::npos; at = feed.find(Id, at)) {
        at += Id.size();
        const std::size_t idEnd = feed.find(Updated, at);
        const std::size_t end = feed.find("</updated>", at);
        if (idEnd < end && end != std::string_view::npos)
            times.emplace(feed.substr(at, idEnd - at),
                          feed.substr(idEnd + Updated.size(), end - idEnd - Updated.size()));
    }
    return times;
}

std::string_view fullName(std::string_view abbr) {
    const auto team = std::ranges::find(TeamAbbr, abbr);
    const auto index = static_cast<std::size_t>(team - TeamAbbr.begin());
    return index < TeamName.size() ? TeamName[TeamIndex(static_cast<int>(index))] : abbr;
}

/// When games were imported, or told of first.
struct TimesOfFeed {
    const GameTimes& imported;
    std::map<std::string, std::string> told; ///< by the ids of the feed's entries
    std::string now;

    std::string of(std::string_view number, const std::string& id) const {
        if (const auto known = imported.find(static_cast<int>(leadingNumber(number)));
            known != imported.end())
            return known->second;
        const auto known = told.find(id);
        return known != told.end() ? known->second : now;
    }
};

/// There is a game at least.
std::string feedText(const SiteSettings& settings, const std::vector<ListedGame>& games,
                     const TimesOfFeed& times) {
    const std::string address = xmlText(settings.address);
    PageText entries;
    std::string latest;
    for (auto game = games.rbegin(); game != games.rend() && game - games.rbegin() < GamesInFeed; ++game) {
        const std::string page = markup("{}BoxScores/{}", address, game->page);
        const std::string id = markup("{}#{}", page, game->number);
        const std::string time = times.of(game->number, id);
        latest = std::max(latest, time);
        entries.add("<entry>\n<id>{}</id>\n<updated>{}</updated>\n", id, time);
        entries.add("<title>{} {}, {} {}</title>\n", fullName(game->away), game->awayGoals,
                    fullName(game->home), game->homeGoals);
        entries.add("<link href=\"{}\"/>\n</entry>\n", page);
    }
    PageText feed;
    feed.add("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<feed xmlns=\"http://www.w3.org/2005/Atom\">\n");
    feed.add("<id>{}</id>\n<title>{}</title>\n<updated>{}</updated>\n", address, xmlText(settings.name),
             latest);
    feed.add("<author><name>{}</name></author>\n<link href=\"{}\"/>\n", xmlText(settings.name), address);
    feed.add("<link rel=\"self\" href=\"{}feed.xml\"/>\n{}</feed>\n", address, entries.text());
    return feed.text();
}

void writeFeed(Files& files, const SiteSettings& settings, const GameTimes& times,
               std::chrono::sys_seconds now) {
    const std::string feed = paths::page("feed.xml");
    const std::string list = paths::page("BoxScores.htm");
    const std::string listText = files.isFile(list) ? files.read(list) : "";
    const std::vector<ListedGame> games = listedGames(listText);
    if (games.empty())
        return;
    const std::string before = files.isFile(feed) ? files.read(feed) : "";
    writePage(files, feed, feedText(settings, games, {times, timesIn(before), utcText(now)}));
}

void writeMap(Files& files, const SiteSettings& settings) {
    PageText map;
    map.add("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
            "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n");
    for (const std::string& path : filesUnder(files, paths::WebRoot))
        if (path.ends_with(".htm"))
            map.add("<url><loc>{}{}</loc></url>\n", xmlText(settings.address), linkText(path));
    map.add("</urlset>\n");
    writePage(files, paths::page("sitemap.xml"), map.text());
}

} // namespace

void writeFeedAndMap(Files& files, const SiteSettings& settings, const GameTimes& times,
                     std::chrono::sys_seconds now) {
    if (settings.name.empty() || settings.address.empty())
        return;
    writeFeed(files, settings, times, now);
    writeMap(files, settings);
}

} // namespace iceline
