#include "cli/Command.h"
#include "cli/TextTable.h"
#include "cli/UseWindow.h"
#include "cli/WindowPrinters.h"
#include "copies/Backup.h"
#include "history/Audit.h"
#include "history/History.h"
#include "log/EntryText.h"
#include "page/DataTable.h"

#include <nlohmann/json.hpp>

namespace iceline::cli {

namespace {

using Json = nlohmann::ordered_json;

/// How a list is to be printed.
struct Listing {
    std::string team;
    std::string coach;
    bool csv = false;
    bool json = false;
};

struct GameChoice {
    int number = 0;
    bool json = false;
};

struct AuditChoice {
    bool accept = false;
    bool repair = false;
    bool json = false;
};

struct CorrectionWords {
    int number = 0;
    bool season = false;
    bool exhibition = false;
    std::string homeCoach;
    std::string awayCoach;
    std::string file;
};

Status statusOf(bool done) {
    return done ? Status::Done : Status::Refused;
}

/// What the log keeps of an operation for working it out again, and nobody wants to read in a list.
constexpr std::array Unlisted{"sheet",      "rosters",    "stars",       "starts", "playoffs",
                              "lastScorer", "lastPeriod", "fingerprint", "by",     "files"};

Json jsonOfRow(const HistoryRow& row) {
    Json object = jsonOf(row.step.entry);
    for (const char* field : Unlisted)
        object.erase(field);
    object["undone"] = row.undone;
    if (const GameImported* game = row.game()) {
        if (row.step.gameNumber > 0)
            object["game"] = row.step.gameNumber;
        object["home"] = TeamAbbr[game->sheet.home.team];
        object["away"] = TeamAbbr[game->sheet.away.team];
        object["homeGoals"] = game->sheet.home.Goals;
        object["awayGoals"] = game->sheet.away.Goals;
        object["overtime"] = game->lastPeriod >= OvertimePeriod;
        object["corrected"] = row.step.corrected;
    }
    return object;
}

void addField(DataTable& table, const Json& object, std::string_view name) {
    const auto field = object.find(name);
    if (field == object.end())
        table.blank();
    else if (field->is_string())
        table.text(field->get<std::string>());
    else if (field->is_boolean())
        table.flag(field->get<bool>());
    else
        table.number(field->get<double>());
}

void printCsv(const std::vector<HistoryRow>& rows, std::ostream& out) {
    static constexpr std::array<std::string_view, 16> Columns{
        "number",    "time",      "what",      "undone",    "game",  "part", "home",   "away",
        "homeGoals", "awayGoals", "homeCoach", "awayCoach", "coach", "to",   "length", "team"};
    DataTable table{};
    for (const std::string_view column : Columns)
        table.addColumn(column);
    for (const HistoryRow& row : rows) {
        const Json object = jsonOfRow(row);
        for (const std::string_view column : Columns)
            addField(table, object, column);
        table.endRow();
    }
    out << table.csv();
}

void printTable(const std::vector<HistoryRow>& rows, Printout& out) {
    using Align = TextTable::Align;
    TextTable table({{"#"}, {"Time (UTC)", Align::Left}, {"Operation", Align::Left}, {"", Align::Left}});
    for (const HistoryRow& row : rows)
        table.addRow({std::to_string(row.number), row.time, row.title,
                      row.undone           ? "undone"
                      : row.step.corrected ? "corrected"
                                           : ""});
    out << table;
}

Status printHistory(Session& session, const Listing& listing) {
    History history(session.app());
    if (!listing.team.empty()) {
        history.filter.team = teamByAbbr(listing.team);
        if (!history.filter.team)
            throw UsageError("there is no team '" + listing.team + "'; give its abbreviation");
    }
    history.filter.coach = listing.coach;
    history.Form_Load();
    const std::vector<HistoryRow>& rows = history.content().rows;
    if (listing.csv) {
        printCsv(rows, session.out());
    } else if (listing.json) {
        Json list = Json::array();
        for (const HistoryRow& row : rows)
            list.push_back(jsonOfRow(row));
        session.out() << list.dump(1) << '\n';
    } else {
        session.print([&](Printout& out) { printTable(rows, out); });
    }
    return Status::Done;
}

Status printGameOf(Session& session, const GameChoice& choice) {
    History history(session.app());
    history.Form_Load();
    const auto report = history.report(choice.number);
    if (!report) {
        session.out() << "Operation " << choice.number << " of the history is no game.\n";
        return Status::Refused;
    }
    if (!choice.json) {
        session.print([&](Printout& out) { printGame(*report, out); });
        return Status::Done;
    }
    for (const HistoryRow& row : history.content().rows) {
        if (row.number != choice.number)
            continue;
        Entry entry = row.step.entry;
        entry.operation = *row.game();
        Json object = jsonOf(entry);
        object["undone"] = row.undone;
        object.erase("rosters");
        session.out() << object.dump(1) << '\n';
    }
    return Status::Done;
}

Status undoOne(Session& session, const std::optional<int>& number) {
    return statusOf(History(session.app()).Undo_Click(number));
}

Status redoOne(Session& session, const NoArguments&) {
    return statusOf(History(session.app()).Redo_Click());
}

/// The coach that a word names: nobody for "none".
std::optional<std::optional<std::string>> coachOf(Session& session, const std::string& word) {
    if (word.empty())
        return std::nullopt;
    return word == "none" ? std::optional<std::string>() : std::optional(knownCoach(session, word));
}

Status correctOne(Session& session, const CorrectionWords& words) {
    Correction correction;
    if (words.season || words.exhibition)
        correction.exhibition = words.exhibition;
    correction.homeCoach = coachOf(session, words.homeCoach);
    correction.awayCoach = coachOf(session, words.awayCoach);
    if (!words.file.empty())
        correction.file = absolutePath(words.file);
    return statusOf(History(session.app()).Correct_Click(words.number, correction));
}

void printAudit(const Audit& audit, bool asJson, std::ostream& out) {
    if (asJson) {
        Json list = Json::array();
        for (const Difference& difference : audit.differences)
            list.push_back({{"path", difference.path}, {"texts", textsOf(difference)}});
        const Json object{
            {"files", audit.files}, {"differ", audit.differences.size()}, {"differences", list}};
        out << object.dump(1) << '\n';
        return;
    }
    for (const Difference& difference : audit.differences)
        for (const std::string& text : textsOf(difference))
            out << text << '\n';
    out << audit.differences.size() << " of " << audit.files << " files differ\n";
}

Status audit(Session& session, const AuditChoice& choice) {
    try {
        const Audit found = auditBooks(session.app());
        printAudit(found, choice.json, session.out());
        if (found.differences.empty())
            return Status::Done;
        if (choice.accept)
            acceptDifferences(session.app(), found);
        if (choice.repair)
            repairDifferences(session.app(), found);
        return statusOf(choice.accept || choice.repair);
    } catch (const std::runtime_error& refusal) {
        if (!dynamic_cast<const HistoryRefusal*>(&refusal) && !dynamic_cast<const Misfit*>(&refusal))
            throw;
        session.out() << refusal.what() << '\n';
        return Status::Refused;
    }
}

Status backUpLeague(Session& session, const std::optional<std::string>& folder) {
    session.out() << backUp(session.app(), folder ? absolutePath(*folder) : BackupFolder) << '\n';
    return Status::Done;
}

Status restoreLeague(Session& session, const std::string& copy) {
    const std::string former = restore(session.app(), absolutePath(copy));
    session.out() << "The league is as it was when the copy was made. As it was before this: " << former
                  << '\n';
    return Status::Done;
}

} // namespace

void addHistoryCommands(CLI::App& program, Call& call) {
    const auto [list, listing] =
        addCommand<Listing>(program, call, "history", "List every operation of the league", printHistory);
    list->add_option("--team", listing->team, "of a team alone, by its abbreviation")->type_name("ABBR");
    list->add_option("--coach", listing->coach, "of a coach alone")->type_name("NAME");
    list->add_flag("--csv", listing->csv, "as comma-separated values");
    list->add_flag("--json", listing->json, "as JSON");

    const auto [game, choice] = addCommand<GameChoice>(
        program, call, "game", "Print the report of a game of the history", printGameOf);
    addArgument(*game, "N", choice->number, "the number in the history");
    game->add_flag("--json", choice->json, "as JSON");

    const auto [undoCommand, number] = addCommand<std::optional<int>>(
        program, call, "undo", "Take an operation back, by default the last one", undoOne);
    undoCommand->add_option("N", *number, "the number in the history")->type_name("");
    addCommand(program, call, "redo", "Put the operation undone last in place again", redoOne);

    const auto [correctCommand, words] =
        addCommand<CorrectionWords>(program, call, "correct", "Correct a game of the history", correctOne);
    addArgument(*correctCommand, "N", words->number, "the number in the history");
    auto* season =
        correctCommand->add_flag("--season", words->season, "it is a game of the season or the play-offs");
    correctCommand->add_flag("--exhibition", words->exhibition, "it is an exhibition game")->excludes(season);
    correctCommand->add_option("--home-coach", words->homeCoach, "its home coach, or none")
        ->type_name("NAME");
    correctCommand->add_option("--away-coach", words->awayCoach, "its away coach, or none")
        ->type_name("NAME");
    correctCommand->add_option("--file", words->file, "the save state that should have been imported")
        ->type_name("OTHER");

    const auto [auditCommand, what] = addCommand<AuditChoice>(
        program, call, "audit", "Work the books out anew and compare them with the files", audit);
    auto* accept =
        auditCommand->add_flag("--accept", what->accept, "make the changes by hand part of the history");
    auditCommand->add_flag("--repair", what->repair, "write what the games give")->excludes(accept);
    auditCommand->add_flag("--json", what->json, "as JSON");

    const auto [backupCommand, folder] = addCommand<std::optional<std::string>>(
        program, call, "backup", "Write a copy of the league, with its history, into one file", backUpLeague);
    backupCommand->add_option("DIR", *folder, "the folder for it (default: History/Backups)")->type_name("");
    const auto [restoreCommand, copy] = addCommand<std::string>(
        program, call, "restore", "Make the league what it was when a copy was made", restoreLeague);
    addArgument(*restoreCommand, "COPY", *copy, "a file that backup has written");
}

} // namespace iceline::cli
