#include "store/LeagueFiles.h"

#include "store/LeaguePaths.h"
#include "store/TeamRecord.h"

namespace iceline {

template <>
std::span<const Field<PlayerRecord>> fieldsOf<PlayerRecord>() {
    static constexpr std::array Fields{
        item("TeamIndex", &PlayerRecord::Team),
        item("Name", &PlayerRecord::Name),
        i32("Value", &PlayerRecord::Value),
    };
    return Fields;
}

template <>
std::span<const Field<LeagueRecord>> fieldsOf<LeagueRecord>() {
    static constexpr std::array Fields{
        item("TeamIndex", &LeagueRecord::Team),
        i32("Value", &LeagueRecord::Value),
    };
    return Fields;
}

template <>
std::span<const Field<CoachRecord>> fieldsOf<CoachRecord>() {
    static constexpr std::array Fields{
        item("Coach", &CoachRecord::Name),
        item("Value", &CoachRecord::Value),
    };
    return Fields;
}

namespace {

void rejectUnless(bool holds, const ItemReader& reader, std::string_view field, const std::string& wrong) {
    if (!holds)
        reader.reject(field, wrong);
}

template <std::size_t Count>
std::array<PlayerRecord, Count> readPlayerRecords(Files& files, const std::string& path) {
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    std::array<PlayerRecord, Count> records;
    for (PlayerRecord& record : records)
        readFields(reader, record);
    return records;
}

template <class Records>
std::string recordsLine(const std::string& file, const Records& records) {
    LineWriter writer(file);
    for (const auto& record : records)
        writeFields(writer, record);
    return writer.endLine().content();
}

int readWins(ItemReader& reader, std::string_view field) {
    const int wins = reader.integer16(field);
    rejectUnless(wins >= 0 && wins <= WinsToTakeSeries, reader, field,
                 "wins from 0 to 4 were expected, not " + std::to_string(wins));
    return wins;
}

TeamIndex readSlot(ItemReader& reader, std::string_view field) {
    const TeamIndex team(reader.integer16(field));
    rejectUnless(isLeagueTeam(team) || team == BlankTeam, reader, field,
                 "no team of the league has the number " + std::to_string(team.number()));
    return team;
}

} // namespace

CoachesLeagueRecords::CoachesLeagueRecords() {
    recordOf(pairs, LeagueRecordOf::CrowdMeter).Value = CrowdMeterAtStart;
    for (std::size_t i = 0; i < passedOn.size(); i += 3) {
        passedOn[i] = {""};
        passedOn[i + 1] = RawItem::text("");
    }
}

AllTimePlayerRecords readAllTimePlayerRecords(Files& files, const std::string& path) {
    return readPlayerRecords<std::tuple_size_v<AllTimePlayerRecords>>(files, path);
}

AllTimeGoalieRecords readAllTimeGoalieRecords(Files& files, const std::string& path) {
    return readPlayerRecords<std::tuple_size_v<AllTimeGoalieRecords>>(files, path);
}

AllTimeLeagueRecords readAllTimeLeagueRecords(Files& files, const std::string& path) {
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    AllTimeLeagueRecords records;
    for (LeagueRecord& record : records)
        readFields(reader, record);
    return records;
}

CoachesLeagueRecords readCoachesLeagueRecords(Files& files, const std::string& path) {
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    CoachesLeagueRecords records;
    for (CoachRecord& pair : records.pairs)
        readFields(reader, pair);
    for (RawItem& passedOn : records.passedOn)
        passedOn = reader.raw("passed on");
    return records;
}

std::string textOf(const std::string& file, const AllTimePlayerRecords& records) {
    return recordsLine(file, records);
}

std::string textOf(const std::string& file, const AllTimeGoalieRecords& records) {
    return recordsLine(file, records);
}

std::string textOf(const std::string& file, const AllTimeLeagueRecords& records) {
    return recordsLine(file, records);
}

std::string textOf(const std::string& file, const CoachesLeagueRecords& records) {
    LineWriter writer(file);
    for (const CoachRecord& pair : records.pairs)
        writeFields(writer, pair);
    for (const RawItem& passedOn : records.passedOn)
        writer.raw(passedOn.written);
    return writer.endLine().content();
}

AllTimeLeagueRecords initialLeagueRecords() {
    AllTimeLeagueRecords records;
    recordOf(records, LeagueRecordOf::CrowdMeter).Value = CrowdMeterAtStart;
    return records;
}

void readPlayoffRecords(Files& files, PlayoffSeriesTable& series) {
    const std::string content = files.read(paths::PlayoffRecords);
    ItemReader reader(paths::PlayoffRecords, content);
    PlayoffSeriesTable read = series;
    for (const SeriesIndex number : AllSeries) {
        PlayoffSeriesRecord& record = read[number];
        record.WinsA = readWins(reader, "WinsA");
        record.WinsB = readWins(reader, "WinsB");
        if (isFirstRound(number))
            continue;
        record.TeamA = readSlot(reader, "TeamA");
        record.TeamB = readSlot(reader, "TeamB");
    }
    series = read;
}

std::string textOf(const PlayoffSeriesTable& series) {
    LineWriter writer(paths::PlayoffRecords);
    for (const SeriesIndex number : AllSeries) {
        const PlayoffSeriesRecord& record = series[number];
        writer.integer(record.WinsA).integer(record.WinsB);
        if (!isFirstRound(number))
            writer.team(record.TeamA).team(record.TeamB);
        writer.endLine();
    }
    return writer.content();
}

int readNumber16(Files& files, const std::string& path) {
    const std::string content = files.read(path);
    return ItemReader(path, content, LastLine::MayLackEnd).integer16("number");
}

int readNumber32(Files& files, const std::string& path) {
    const std::string content = files.read(path);
    return ItemReader(path, content, LastLine::MayLackEnd).integer32("number");
}

std::string numberLine(int value) {
    return std::to_string(value) + std::string(LineEnd);
}

std::vector<RecentGame> readRecentGames(Files& files) {
    const std::string content = files.read(paths::Last10Box);
    ItemReader reader(paths::Last10Box, content);
    std::vector<RecentGame> games;
    while (!reader.atEnd() && games.size() < 10) {
        RecentGame game;
        game.Home = reader.team("home team");
        game.Away = reader.team("away team");
        game.HomeGoals = reader.integer16("home goals");
        game.AwayGoals = reader.integer16("away goals");
        game.Page = reader.text("page");
        games.push_back(game);
    }
    return games;
}

std::string textOf(const std::vector<RecentGame>& games) {
    LineWriter writer(paths::Last10Box);
    for (const RecentGame& game : games) {
        writer.team(game.Home).team(game.Away).endLine();
        writer.integer(game.HomeGoals).integer(game.AwayGoals).endLine();
        writer.text("page", game.Page).endLine();
    }
    return writer.content();
}

std::string initialUnusedLeagueRecordsText() {
    LineWriter writer("League Records.txt");
    for (int i = 0; i < 25; ++i)
        writer.integer(0);
    return writer.integer(CrowdMeterAtStart).endLine().content();
}

} // namespace iceline
