#pragma once

#include "league/PartOfYear.h"
#include "league/TeamTable.h"

#include <string>

namespace iceline {

/// The part of a path between a team's folder and its files: "" or "/Post Season".
inline std::string seasonFolder(PartOfYear part) {
    return part == PartOfYear::Season ? "" : "/Post Season";
}

/// Where the league's files lie, relative to the league folder.
namespace paths {

inline const std::string Last10Box = "Last 10 Box.txt";
inline const std::string GamesUntilPlayoffs = "Games Until Playoffs.txt";
inline const std::string OverallGameNumber = "Overall Game Number.txt";
inline const std::string PlayoffRecords = "Playoff Records.txt";
inline const std::string CrowdMeter = "League Record Crowd Meter.txt";
inline const std::string Coaches = "Coaches";
inline const std::string WebRoot = "IcelineWebPages";
inline const std::string Seasons = "Seasons";
inline const std::string SiteSettings = "Site Settings.json";

/// Names of the files that a team has once for each part of the year, and a coach once.
inline const std::string Records = "Records.txt";
inline const std::string Streak = "Streak.txt";
inline const std::string Last10Games = "Last 10 Games.txt";
inline const std::string PlayerStats = "Player Stats.txt";

inline std::string teamFolder(TeamIndex team) {
    return std::string(TeamName[team]);
}

inline std::string teamFile(TeamIndex team, PartOfYear part, const std::string& name) {
    return teamFolder(team) + seasonFolder(part) + "/" + name;
}

/// A team's roster, one for both parts of the year.
inline std::string playersList(TeamIndex team) {
    return teamFolder(team) + "/Players List.txt";
}

inline std::string coachFolder(const std::string& coach) {
    return Coaches + "/" + coach;
}

inline std::string coachFile(const std::string& coach, const std::string& name) {
    return coachFolder(coach) + "/" + name;
}

/// A league-wide file that has a twin for the play-offs, whose name has "Playoff " before it.
inline std::string twin(PartOfYear part, const std::string& name) {
    return part == PartOfYear::Season ? name : "Playoff " + name;
}

inline std::string allTimePlayerRecords(PartOfYear part) {
    return twin(part, "All-Time Player Records.txt");
}
inline std::string allTimeGoalieRecords(PartOfYear part) {
    return twin(part, "All-Time Goalie Records.txt");
}
inline std::string allTimeLeagueRecords(PartOfYear part) {
    return twin(part, "All-Time League Records.txt");
}
inline std::string coachesLeagueRecords(PartOfYear part) {
    return twin(part, "Coaches League Records.txt");
}

/// The copy of a season that is over.
inline std::string keptSeason(const std::string& name) {
    return Seasons + "/" + name;
}

/// A page or folder of the web site.
inline std::string page(const std::string& name) {
    return WebRoot + "/" + name;
}

/// The site of a season that is over.
inline std::string oldSeasonSite(const std::string& name) {
    return page(keptSeason(name));
}

} // namespace paths
} // namespace iceline
