#include "page/PageFrame.h"

#include <array>

namespace iceline {

namespace {

struct BarEntry {
    std::string_view file;
    std::string_view caption; ///< with its leading blanks
};

constexpr std::array<BarEntry, 10> Bar{{
    {"index.htm", " Home"},
    {"BoxScores.htm", " Box Scores"},
    {"PlayerStats.htm", " Player Stats"},
    {"TeamStats.htm", " Team Stats"},
    {"Standings.htm", " Standings"},
    {"LeagueLeaders.htm", "  League Leaders"},
    {"CoachingStats.htm", "  Coaching Stats"},
    {"PlayerProfiles.htm", "  Player Profiles"},
    {"AllTimeRecords.htm", "  All-Time Records"},
    {"Playoffs.htm", "  Playoffs"},
}};

} // namespace

std::string navigationBar(std::string_view prefix) {
    PageText bar;
    for (const BarEntry& entry : Bar)
        bar.add(R"({}<a href="{}{}"><b>{}</b></a>)", bar.text().empty() ? "" : " | ", prefix, entry.file,
                entry.caption);
    return "<p>" + bar.text() + "</p>";
}

std::string headerImage(std::string_view folder, std::string_view name) {
    return markup(R"(<br/><p><img src="{}{}.gif"></img></p><br/><br/>)", folder, name);
}

std::string PageFrame::text() const {
    PageText page;
    page.line(R"({}<head><title>{}</title><link rel="stylesheet" href="{}" type ="Text/css"></head>)", start,
              title, styleSheet);
    page.line("<body link = BLACK vlink = BLACK alink = RED>{}", opening);
    page.line(navigationBar(prefix));
    return page.text();
}

void writePage(Files& files, const std::string& path, std::string_view text) {
    if (!files.holds(path, text))
        files.write(path, text, Durability::Unsynced);
}

} // namespace iceline
