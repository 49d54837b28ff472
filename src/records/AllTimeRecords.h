#pragma once

#include "shell/Window.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// The best single-game figures ever set in a part of the year, by players, goalies, teams and coaches. Every
/// load also writes the page.
class AllTimeRecords : public Window {
public:
    AllTimeRecords(Application& application, PartOfYear part) : Window(application), part_(part) {}

    struct Content {
        AllTimePlayerRecords players;
        AllTimeGoalieRecords goalies;
        AllTimeLeagueRecords teams;
        CoachesLeagueRecords coaches;
    };

    void Form_Load() override;

    const Content& content() const { return content_; }

protected:
    void readAgain() override;

private:
    PartOfYear part_;
    Content content_;
};

/// The records of a part of the year. Throws FileError when a file cannot be read.
AllTimeRecords::Content readAllTimeRecords(Files& files, PartOfYear part);

/// A record as the window shows it. A control that the section does not have is "".
struct ShownRecord {
    std::string_view caption;
    std::string_view teamControl;
    std::string_view nameControl;
    std::string_view valueControl;
    std::optional<TeamIndex> team; ///< none for a coach's record
    std::string name;
    std::string value;
};

/// A section of the window.
struct RecordSection {
    const char* frame;
    std::string_view caption;
    std::vector<ShownRecord> records;
};

/// The sections of the window: players, goalies, teams, coaches.
std::array<RecordSection, 4> recordSections(const AllTimeRecords::Content& content);

/// The text of the page, the same for both parts of the year but for the figures.
std::string allTimeRecordsPage(const AllTimeRecords::Content& content);

} // namespace iceline
