#include "page/PageFrame.h"

#include "store/TextFormat.h"

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

PageText& PageText::line(std::string_view text) {
    text_ += text;
    text_ += LineEnd;
    return *this;
}

std::string navigationBar(std::string_view prefix) {
    std::string bar = "<p>";
    for (const BarEntry& entry : Bar) {
        if (bar.size() > 3)
            bar += " | ";
        bar += "<a href=\"";
        bar += prefix;
        bar += entry.file;
        bar += "\"><b>";
        bar += entry.caption;
        bar += "</b></a>";
    }
    return bar + "</p>";
}

std::string headerImage(std::string_view folder, std::string_view name) {
    std::string image = "<br/><p><img src=\"";
    image += folder;
    image += name;
    return image + ".gif\"></img></p><br/><br/>";
}

std::string PageFrame::text() const {
    PageText page;
    page.line(start + "<head><title>" + title + "</title><link rel=\"stylesheet\" href=\"" + styleSheet +
              "\" type =\"Text/css\"></head>");
    page.line("<body link = BLACK vlink = BLACK alink = RED>" + opening);
    page.line(navigationBar(prefix));
    return page.text();
}

void writePage(Files& files, const std::string& path, std::string_view text) {
    if (!files.holds(path, text))
        files.write(path, text, Durability::Unsynced);
}

} // namespace iceline
