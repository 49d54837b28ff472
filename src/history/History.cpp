#include "history/History.h"

#include "export/DataExport.h"
#include "files/FileError.h"
#include "games/BookEntry.h"
#include "log/KnownRosters.h"
#include "shell/Application.h"
#include "text/Names.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace iceline {

namespace {

/// What speaks of other operations alone has no row of its own.
bool isShown(const Step& step) {
    return canBeUndone(step.entry.operation) || std::holds_alternative<PlayoffsBegun>(step.entry.operation);
}

HistoryRow rowOf(const Step& step) {
    return {step.entry.number, step.entry.time, std::string(whatOf(step.entry.operation)),
            titleOf(step),     step.undone,     step};
}

/// The coaches that an operation names.
struct CoachesOf {
    using Names = std::set<std::string>;

    Names operator()(const CoachAdded& operation) const { return {operation.coach}; }
    Names operator()(const CoachRenamed& operation) const { return {operation.coach, operation.to}; }
    Names operator()(const CoachDeleted& operation) const { return {operation.coach}; }
    Names operator()(const CoachCleared& operation) const { return {operation.coach}; }
    Names operator()(const GameImported& game) const {
        return {game.homeCoach.value_or(""), game.awayCoach.value_or("")};
    }
    Names operator()(const GameCorrected& correction) const { return (*this)(correction.game); }
    template <class Other>
    Names operator()(const Other&) const {
        return {};
    }
};

bool isOf(const HistoryRow& row, TeamIndex team) {
    if (const GameImported* game = row.game())
        return game->sheet.home.team == team || game->sheet.away.team == team;
    const auto* cleared = std::get_if<StatsCleared>(&row.step.entry.operation);
    return cleared && (cleared->team == team || cleared->team == AllTeams);
}

bool isBy(const HistoryRow& row, const std::string& coach) {
    const auto coaches = std::visit(CoachesOf(), row.step.entry.operation);
    return std::ranges::any_of(coaches, [&](const auto& name) { return sameName(name, coach); });
}

/// All coaches that the operations name, in the order of their names.
std::vector<std::string> coachesOf(const std::vector<HistoryRow>& rows) {
    std::set<std::string> coaches;
    for (const HistoryRow& row : rows)
        coaches.merge(std::visit(CoachesOf(), row.step.entry.operation));
    coaches.erase("");
    return {coaches.begin(), coaches.end()};
}

bool contains(const std::string& text, const std::string& part) {
    const auto sameLetter = [](char a, char b) { return sameName({&a, 1}, {&b, 1}); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), sameLetter) != text.end() ||
           part.empty();
}

} // namespace

const GameImported* HistoryRow::game() const {
    if (const auto* correction = std::get_if<GameCorrected>(&step.entry.operation))
        return &correction->game;
    return std::get_if<GameImported>(&step.entry.operation);
}

void History::Form_Load() {
    const std::vector<Step> steps = readHistory(app_.files());
    all_.clear();
    for (const Step& step : steps)
        if (isShown(step))
            all_.push_back(rowOf(step));
    content_.coaches = coachesOf(all_);
    content_.canUndo = lastToUndo(steps).has_value();
    content_.canRedo = lastToRedo(steps).has_value();
    showFiltered();
}

void History::showFiltered() {
    content_.rows.clear();
    std::ranges::copy_if(all_, std::back_inserter(content_.rows),
                         [this](const auto& row) { return lets(row); });
    changed();
}

bool History::lets(const HistoryRow& row) const {
    return (!filter.team || isOf(row, *filter.team)) && (filter.coach.empty() || isBy(row, filter.coach)) &&
           (filter.what.empty() || row.what == filter.what) &&
           (!filter.part || (row.game() && row.game()->part == *filter.part)) &&
           contains(row.title, filter.text);
}

template <class Action>
bool History::carryOut(Action action) {
    const BusyPointer busy(app_.platform());
    try {
        app_.platform().say(action());
        Form_Load();
        return true;
    } catch (const HistoryRefusal& refusal) {
        app_.platform().say(refusal.what());
        return false;
    }
}

bool History::Undo_Click(std::optional<int> number) {
    return carryOut([&] { return undo(app_, number); });
}

bool History::Redo_Click() {
    return carryOut([&] { return redo(app_); });
}

bool History::Correct_Click(int number, const Correction& correction) {
    return carryOut([&] { return correct(app_, number, correction); });
}

void History::Export_Click() {
    const auto folder = app_.platform().chooseFolder("Select folder to export to");
    if (!folder)
        return;
    const int files = exportData(app_, *folder);
    app_.platform().say(std::to_string(files) + " files are in " + *folder + ".");
}

std::optional<GameReport> History::report(int number) {
    const auto row = std::ranges::find(all_, number, &HistoryRow::number);
    const GameImported* game = row == all_.end() ? nullptr : row->game();
    if (!game)
        return std::nullopt;
    KnownRosters rosters(readBaseline(app_.files()));
    for (const Step& step : readHistory(app_.files()))
        if (step.entry.number <= number)
            rosters.take(step);
    return reportOf(*game, rosters.of(game->sheet));
}

} // namespace iceline
