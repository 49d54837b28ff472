#include "history/Audit.h"

#include "copies/Backup.h"
#include "history/HistoryChanges.h"
#include "league/TeamTable.h"
#include "shell/LoggedChange.h"
#include "store/PlayerFiles.h"
#include "store/TeamFiles.h"

#include <map>
#include <set>
#include <tuple>

namespace iceline {

namespace {

/// Line and item, from 1.
using Place = std::pair<int, int>;
using Items = std::map<Place, std::string>;

Items itemsOf(const std::string& content) {
    Items items;
    Place place{1, 1};
    bool quoted = false;
    for (const char c : content) {
        quoted = quoted != (c == '"');
        if (c == '\n')
            place = {place.first + 1, 1};
        else if (c == ',' && !quoted)
            ++place.second;
        else if (c != '\r')
            items[place] += c;
    }
    return items;
}

std::string itemAt(const Items& items, const Place& place) {
    const auto item = items.find(place);
    return item == items.end() ? "" : item->second;
}

/// The places that two files do not have the same at.
std::set<Place> differing(const Items& one, const Items& other) {
    std::set<Place> places;
    for (const auto* items : {&one, &other})
        for (const auto& [place, text] : *items)
            if (itemAt(one, place) != itemAt(other, place))
                places.insert(place);
    return places;
}

template <class Record>
std::string fieldName(int item) {
    const auto fields = fieldsOf<Record>();
    const auto place = static_cast<std::size_t>(item) - 1;
    return place < fields.size() ? std::string(fields[place].name) : "";
}

/// The player whose line of `Player Stats.txt` it is; null in another file.
const RosterRow* playerOf(const std::string& path, const std::map<TeamIndex, Roster>& rosters, int line) {
    const auto team = teamByName(path.substr(0, path.find('/')));
    const bool isTheirs = team && path.ends_with("/" + paths::PlayerStats) && line <= RosterRows;
    return isTheirs ? &rosters.at(*team)[static_cast<std::size_t>(line) - 1] : nullptr;
}

void name(FieldDifference& field, const std::string& path, const std::map<TeamIndex, Roster>& rosters) {
    if (path.ends_with("/" + paths::Records))
        field.name = fieldName<TeamRecord>(field.item);
    if (path.ends_with("/" + paths::Streak))
        field.name = fieldName<Streak>(field.item);
    if (const RosterRow* player = playerOf(path, rosters, field.line)) {
        field.holder = player->Name;
        field.name =
            player->isGoalie() ? fieldName<GoalieStats>(field.item) : fieldName<SkaterStats>(field.item);
    }
}

std::map<TeamIndex, Roster> rostersOf(Files& files) {
    std::map<TeamIndex, Roster> rosters;
    for (const TeamIndex team : AllLeagueTeams)
        rosters[team] = readRoster(files, paths::playersList(team));
    return rosters;
}

/// Works the books out once more, and notes by which operation each field that differs came to be what it is.
void noteOrigins(Application& app, const std::vector<Step>& steps, std::vector<Difference>& differences) {
    Replay replay(readBaseline(app.files()), app.windows().catalogue());
    std::map<std::string, Items> before;
    for (const Step& step : steps) {
        replay.carryOut(step);
        for (Difference& difference : differences) {
            const Items now = itemsOf(replay.content(difference.path).value_or(""));
            Items& former = before[difference.path];
            for (FieldDifference& field : difference.fields)
                if (const Place place{field.line, field.item}; itemAt(now, place) != itemAt(former, place))
                    field.since = canBeUndone(step.entry.operation) ? titleOf(step) : "";
            former = now;
        }
    }
}

Difference differenceOf(const std::string& path, const FileContents& expected, Application& app) {
    Difference difference{path, contentIn(app.files(), path), contentIn(expected, path), {}};
    if (!difference.found || !difference.expected || difference.found == difference.expected)
        return difference;
    const auto rosters = rostersOf(app.files());
    const Items found = itemsOf(*difference.found);
    const Items given = itemsOf(*difference.expected);
    for (const Place& place : differing(found, given)) {
        FieldDifference field;
        std::tie(field.line, field.item) = place;
        field.found = itemAt(found, place);
        field.expected = itemAt(given, place);
        name(field, path, rosters);
        difference.fields.push_back(std::move(field));
    }
    return difference;
}

std::string orNothing(const std::string& item) {
    return item.empty() ? "nothing" : item;
}

std::string textOf(const std::string& path, const FieldDifference& field) {
    return path + (field.holder.empty() ? "" : ", " + field.holder) + ", line " + std::to_string(field.line) +
           ", item " + std::to_string(field.item) + (field.name.empty() ? "" : " (" + field.name + ")") +
           ": the file has " + orNothing(field.found) + ", the games give " + orNothing(field.expected) +
           (field.since.empty() ? "" : " since " + field.since);
}

} // namespace

Audit auditBooks(Application& app) {
    const std::vector<Step> steps = requireHistory(app);
    Replay replay(readBaseline(app.files()), app.windows().catalogue());
    for (const Step& step : steps)
        replay.carryOut(step);
    const FileContents expected = replay.books();
    std::set<std::string> all;
    for (const auto& file : expected)
        all.insert(file.first);
    for (const std::string& path : booksOf(app.files()))
        all.insert(path);
    Audit audit{all.size(), {}};
    for (const std::string& path : all) {
        Difference difference = differenceOf(path, expected, app);
        if (difference.found != difference.expected)
            audit.differences.push_back(std::move(difference));
    }
    if (!audit.differences.empty())
        noteOrigins(app, steps, audit.differences);
    return audit;
}

void acceptDifferences(Application& app, const Audit& audit) {
    FilesAccepted accepted;
    for (const Difference& difference : audit.differences)
        accepted.files.push_back({difference.path, difference.found});
    LoggedChange change(app);
    change.commit(std::move(accepted));
}

void repairDifferences(Application& app, const Audit& audit) {
    backUpByItself(app);
    Operation operation(app);
    for (const Difference& difference : audit.differences)
        put(app.files(), difference.path, difference.expected);
    operation.commit();
    refreshWindows(app);
}

std::vector<std::string> textsOf(const Difference& difference) {
    if (!difference.found)
        return {difference.path + ": the file is missing"};
    if (!difference.expected)
        return {difference.path + ": the games give no such file"};
    std::vector<std::string> texts;
    for (const FieldDifference& field : difference.fields)
        texts.push_back(textOf(difference.path, field));
    if (texts.empty())
        texts.push_back(difference.path + ": the ends of its lines are not as the program writes them");
    return texts;
}

} // namespace iceline
