#include "page/BoxScoreList.h"

#include "page/PageFrame.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace iceline {

namespace {

/// What is before each value of a row and what ends it. The values have blanks around them that do not count.
struct ValuePlace {
    std::string_view ListedGame::*value;
    std::string_view begin;
    std::string_view end;
};
constexpr auto ValuePlaces = std::to_array<ValuePlace>({
    {&ListedGame::number, "<tr><td><b>", "</b>"},
    {&ListedGame::kind, "<td><b>", "</b>"},
    {&ListedGame::away, "/BannerMinis/", ".gif\""},
    {&ListedGame::awayGoals, "<font size = 5>", ","},
    {&ListedGame::home, "/BannerMinis/", ".gif\""},
    {&ListedGame::homeGoals, ">", "</font>"},
    {&ListedGame::page, "/BoxScores/", "\""},
});

bool isNumber(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<ListedGame> listedGame(std::string_view row) {
    ListedGame game;
    for (const ValuePlace& place : ValuePlaces) {
        const std::size_t begin = row.find(place.begin);
        if (begin == std::string_view::npos)
            return std::nullopt;
        row.remove_prefix(begin + place.begin.size());
        const std::size_t end = row.find(place.end);
        if (end == std::string_view::npos)
            return std::nullopt;
        game.*place.value = trimmed(row.substr(0, end));
        row.remove_prefix(end);
    }
    const bool whole = isNumber(game.number) && isNumber(game.awayGoals) && isNumber(game.homeGoals);
    return whole ? std::optional(game) : std::nullopt;
}

} // namespace

std::string boxScoreListHead() {
    PageText page;
    page.add(PageFrame{"Rinkstar - Box Scores"}.text());
    page.line(headerImage("Headers/", "BoxScores"));
    page.line("<table border =1><tr><th>#</th><th>Type</th><th>Game Result</th></tr>");
    return page.text();
}

std::vector<ListedGame> listedGames(std::string_view list) {
    std::vector<ListedGame> games;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find('\n'), list.size() - 1) + 1;
        if (const auto game = listedGame(list.substr(0, end)))
            games.push_back(*game);
        list.remove_prefix(end);
    }
    return games;
}

} // namespace iceline
