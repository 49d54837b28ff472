#include "log/EntryText.h"

#include "files/FileError.h"
#include "files/JournalFormat.h"
#include "league/TeamSheetFields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <tuple>

namespace iceline {

namespace {

using Json = nlohmann::ordered_json;

/// A field of an object: its name there, and the member that holds it.
template <class Record, class Value>
struct JsonField {
    std::string_view name;
    Value Record::*member;
};

template <class Record, class Value>
constexpr JsonField<Record, Value> field(std::string_view name, Value Record::*member) {
    return {name, member};
}

/// The fields of a record, in the order in which a line has them.
template <class Record>
constexpr auto FieldsOf = std::tuple<>();

template <>
constexpr auto FieldsOf<ScoringEntry> = std::tuple(field("period", &ScoringEntry::period),
                                                   field("seconds", &ScoringEntry::seconds),
                                                   field("type", &ScoringEntry::type),
                                                   field("scorer", &ScoringEntry::scorer),
                                                   field("assist1", &ScoringEntry::assist1),
                                                   field("assist2", &ScoringEntry::assist2));

template <>
constexpr auto FieldsOf<PenaltyEntry> = std::tuple(field("period", &PenaltyEntry::period),
                                                   field("seconds", &PenaltyEntry::seconds),
                                                   field("type", &PenaltyEntry::type),
                                                   field("player", &PenaltyEntry::player));

template <class Rows>
constexpr auto namedFields(const Rows& rows) {
    return std::apply([](const auto&... row) { return std::tuple(field(row.name, row.member)...); }, rows);
}

template <>
constexpr auto FieldsOf<TeamSheet> = std::tuple_cat(std::tuple(field("team", &TeamSheet::team)),
                                                    namedFields(FirstBlockFields),
                                                    namedFields(SecondBlockFields),
                                                    namedFields(PlayerArrays));

template <>
constexpr auto FieldsOf<GameSheet> = std::tuple(field("home", &GameSheet::home),
                                                field("away", &GameSheet::away),
                                                field("crowdMeter", &GameSheet::crowdMeter),
                                                field("awayPowerPlayTime", &GameSheet::awayPPTime),
                                                field("goals", &GameSheet::goals),
                                                field("penalties", &GameSheet::penalties));

template <>
constexpr auto FieldsOf<LoggedStar> = std::tuple(field("team", &LoggedStar::team),
                                                 field("name", &LoggedStar::name),
                                                 field("row", &LoggedStar::row));

template <>
constexpr auto FieldsOf<BaselineTaken> = std::tuple(field("game", &BaselineTaken::gameNumber),
                                                    field("files", &BaselineTaken::checksum));

template <>
constexpr auto FieldsOf<GameImported> =
    std::tuple(field("game", &GameImported::gameNumber), field("part", &GameImported::part),
               field("season", &GameImported::season), field("exhibition", &GameImported::exhibition),
               field("saveState", &GameImported::saveState), field("fingerprint", &GameImported::fingerprint),
               field("homeCoach", &GameImported::homeCoach), field("awayCoach", &GameImported::awayCoach),
               field("sheet", &GameImported::sheet), field("lastScorer", &GameImported::lastScorer),
               field("lastPeriod", &GameImported::lastPeriod), field("stars", &GameImported::stars),
               field("rosters", &GameImported::rosters));

template <>
constexpr auto FieldsOf<ImportRefused> = std::tuple(field("saveState", &ImportRefused::saveState),
                                                    field("reason", &ImportRefused::reason));

template <>
constexpr auto FieldsOf<CoachAdded> = std::tuple(field("coach", &CoachAdded::coach));

template <>
constexpr auto FieldsOf<CoachRenamed> = std::tuple(field("coach", &CoachRenamed::coach),
                                                   field("to", &CoachRenamed::to));

template <>
constexpr auto FieldsOf<CoachDeleted> = std::tuple(field("coach", &CoachDeleted::coach));

template <>
constexpr auto FieldsOf<CoachCleared> = std::tuple(field("coach", &CoachCleared::coach));

template <>
constexpr auto FieldsOf<SeasonLengthSet> = std::tuple(field("length", &SeasonLengthSet::length));

template <>
constexpr auto FieldsOf<StatsCleared> = std::tuple(field("team", &StatsCleared::team));

template <>
constexpr auto FieldsOf<NewSeason> = std::tuple(field("name", &NewSeason::name));

template <>
constexpr auto FieldsOf<Undone> = std::tuple(field("of", &Undone::of));

template <>
constexpr auto FieldsOf<Redone> = std::tuple(field("of", &Redone::of));

template <>
constexpr auto FieldsOf<GameCorrected> = std::tuple(field("of", &GameCorrected::of),
                                                    field("by", &GameCorrected::game));

template <>
constexpr auto FieldsOf<AcceptedFile> = std::tuple(field("path", &AcceptedFile::path),
                                                   field("content", &AcceptedFile::content));

template <>
constexpr auto FieldsOf<FilesAccepted> = std::tuple(field("files", &FilesAccepted::files));

constexpr std::array<std::string_view, 2> PartNames{"season", "playoffs"};

bool isUtf8(const std::string& text) {
    try {
        static_cast<void>(Json(text).dump());
        return true;
    } catch (const Json::type_error&) {
        return false;
    }
}

/// Each byte as the character of that number, and back: for text in an encoding of old.
std::string widened(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (value < 0x80U) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0U | (value >> 6U));
            text += static_cast<char>(0x80U | (value & 0x3FU));
        }
    }
    return text;
}

std::string narrowed(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto value = static_cast<unsigned char>(text[i]);
        if (value < 0x80U || i + 1 == text.size())
            bytes += text[i];
        else
            bytes +=
                static_cast<char>(((value & 0x03U) << 6U) | (static_cast<unsigned char>(text[++i]) & 0x3FU));
    }
    return bytes;
}

void put(Json& json, int value) {
    json = value;
}
void put(Json& json, bool value) {
    json = value;
}
void put(Json& json, PartOfYear part) {
    json = PartNames[static_cast<std::size_t>(part)];
}
void put(Json& json, TeamIndex team) {
    json = TeamAbbr.at(team);
}
void put(Json& json, RosterIndex row) {
    json = row.number();
}
void put(Json& json, const std::string& text) {
    if (isUtf8(text))
        json = text;
    else
        json = {{"latin1", widened(text)}};
}

void take(const Json& json, int& value) {
    value = json.get<int>();
}
void take(const Json& json, bool& value) {
    value = json.get<bool>();
}
void take(const Json& json, PartOfYear& part) {
    part = json.get<std::string>() == PartNames[1] ? PartOfYear::Playoffs : PartOfYear::Season;
}
void take(const Json& json, TeamIndex& team) {
    const auto abbr = json.get<std::string>();
    const auto known = std::ranges::find(TeamAbbr, abbr);
    if (known == TeamAbbr.end())
        throw std::invalid_argument("there is no team \"" + abbr + "\"");
    team = TeamIndex(static_cast<int>(known - TeamAbbr.begin()));
}
void take(const Json& json, RosterIndex& row) {
    const int number = json.get<int>();
    if (number < 0 || number >= RosterRows)
        throw std::invalid_argument("a roster has no row " + std::to_string(number));
    row = RosterIndex(number);
}
void take(const Json& json, std::string& text) {
    text = json.is_object() ? narrowed(json.at("latin1").get<std::string>()) : json.get<std::string>();
}

template <class Value, std::size_t Count>
void put(Json& json, const std::array<Value, Count>& values);
template <class Value>
void put(Json& json, const std::vector<Value>& values);
template <class Record>
requires(std::tuple_size_v<std::remove_const_t<decltype(FieldsOf<Record>)>> >
         0) void put(Json& json, const Record& record);

template <class Value, std::size_t Count>
void take(const Json& json, std::array<Value, Count>& values);
template <class Value>
void take(const Json& json, std::vector<Value>& values);
template <class Record>
requires(std::tuple_size_v<std::remove_const_t<decltype(FieldsOf<Record>)>> > 0) void take(const Json& json,
                                                                                           Record& record);

void put(Json& json, const std::map<std::string, std::string>& values) {
    json = Json::object();
    for (const auto& [name, value] : values)
        put(json[name], value);
}

void take(const Json& json, std::map<std::string, std::string>& values) {
    for (const auto& [name, value] : json.items())
        take(value, values[name]);
}

template <class Values>
void putAll(Json& json, const Values& values) {
    json = Json::array();
    for (const auto& value : values)
        put(json.emplace_back(), value);
}

template <class Value, std::size_t Count>
void put(Json& json, const std::array<Value, Count>& values) {
    putAll(json, values);
}

template <class Value>
void put(Json& json, const std::vector<Value>& values) {
    putAll(json, values);
}

template <class Value, std::size_t Count>
void take(const Json& json, std::array<Value, Count>& values) {
    for (std::size_t i = 0; i < Count; ++i)
        take(json.at(i), values[i]);
}

template <class Value>
void take(const Json& json, std::vector<Value>& values) {
    for (const Json& value : json)
        take(value, values.emplace_back());
}

/// What is blank or empty is left out of the line.
template <class Value>
bool isLeftOut(const std::optional<Value>& value) {
    return !value;
}
bool isLeftOut(const std::map<std::string, std::string>& values) {
    return values.empty();
}
template <class Value>
bool isLeftOut(const Value&) {
    return false;
}

template <class Value>
void putField(Json& object, std::string_view name, const Value& value) {
    if (!isLeftOut(value))
        put(object[std::string(name)], value);
}

template <class Value>
void putField(Json& object, std::string_view name, const std::optional<Value>& value) {
    if (value)
        put(object[std::string(name)], *value);
}

template <class Value>
void takeField(const Json& object, std::string_view name, Value& value) {
    take(object.at(std::string(name)), value);
}

template <class Value>
void takeField(const Json& object, std::string_view name, std::optional<Value>& value) {
    if (object.contains(std::string(name)))
        take(object.at(std::string(name)), value.emplace());
}

void takeField(const Json& object, std::string_view name, std::map<std::string, std::string>& values) {
    if (object.contains(std::string(name)))
        take(object.at(std::string(name)), values);
}

template <class Record>
void putFields(Json& object, const Record& record) {
    std::apply([&](const auto&... fields) { (putField(object, fields.name, record.*fields.member), ...); },
               FieldsOf<Record>);
}

template <class Record>
void takeFields(const Json& object, Record& record) {
    std::apply([&](const auto&... fields) { (takeField(object, fields.name, record.*fields.member), ...); },
               FieldsOf<Record>);
}

template <class Record>
requires(std::tuple_size_v<std::remove_const_t<decltype(FieldsOf<Record>)>> >
         0) void put(Json& json, const Record& record) {
    json = Json::object();
    putFields(json, record);
}

template <class Record>
requires(std::tuple_size_v<std::remove_const_t<decltype(FieldsOf<Record>)>> > 0) void take(const Json& json,
                                                                                           Record& record) {
    takeFields(json, record);
}

/// The operation that a line calls by that name, among the alternatives from `I` on.
template <std::size_t I = 0>
LoggedOperation operationOf(std::string_view what, const Json& object) {
    if constexpr (I == std::variant_size_v<LoggedOperation>) {
        throw std::invalid_argument("there is no operation \"" + std::string(what) + "\"");
    } else {
        using Operation = std::variant_alternative_t<I, LoggedOperation>;
        if (what != Operation::What)
            return operationOf<I + 1>(what, object);
        Operation operation;
        takeFields(object, operation);
        return operation;
    }
}

} // namespace

std::string_view whatOf(const LoggedOperation& operation) {
    return std::visit([](const auto& one) { return std::decay_t<decltype(one)>::What; }, operation);
}

Json jsonOf(const Entry& entry) {
    Json object{{"number", entry.number}, {"time", entry.time}};
    if (entry.starts)
        object["starts"] = true;
    if (entry.playoffs)
        object["playoffs"] = true;
    object["what"] = whatOf(entry.operation);
    std::visit([&object](const auto& operation) { putFields(object, operation); }, entry.operation);
    return object;
}

Entry entryOf(const Json& object) {
    return {object.at("number").get<int>(), object.at("time").get<std::string>(),
            object.value("starts", false), object.value("playoffs", false),
            operationOf(object.at("what").get<std::string>(), object)};
}

std::string fingerprintOf(const GameSheet& sheet, int lastScorer) {
    Json json;
    put(json, sheet);
    json["lastScorer"] = lastScorer;
    return checksumText(json.dump());
}

std::string checksumText(std::string_view text) {
    constexpr std::size_t Digits = 16;
    std::array<char, Digits> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + Digits, checksum(text), Digits).ptr;
    const std::string hexadecimal(digits.data(), end);
    return std::string(Digits - hexadecimal.size(), '0') + hexadecimal;
}

std::string textOfFiles(const std::map<std::string, std::string>& files) {
    Json json;
    put(json, files);
    return json.dump(1) + "\n";
}

std::map<std::string, std::string> filesOfText(const std::string& file, const std::string& text) {
    std::map<std::string, std::string> files;
    try {
        take(Json::parse(text), files);
    } catch (const Json::exception& error) {
        throw FileError::about(file, error.what());
    }
    return files;
}

} // namespace iceline
