#include "coaches/Coaches.h"

#include "books/Clearing.h"
#include "league/Text.h"
#include "page/PageNames.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <array>

namespace iceline {

namespace {

/// Names that Windows keeps for devices, with or without an ending.
constexpr std::array<std::string_view, 22> DeviceNames{
    "CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
    "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};

bool isDeviceName(const std::string& name) {
    const std::string stem = name.substr(0, name.find('.'));
    return std::ranges::any_of(DeviceNames, [&](std::string_view device) { return sameName(stem, device); });
}

} // namespace

std::vector<std::string> coachNames(Files& files) {
    return files.foldersIn(paths::Coaches);
}

std::optional<std::string> findCoach(Files& files, const std::string& name) {
    const std::vector<std::string> coaches = coachNames(files);
    const auto coach = std::ranges::find_if(coaches, [&](const auto& c) { return sameName(c, name); });
    return coach == coaches.end() ? std::nullopt : std::optional(*coach);
}

std::string storedCoachName(std::string name) {
    std::ranges::replace(name, ' ', '_');
    return name;
}

std::optional<std::string> coachNameProblem(const std::string& name) {
    if (characterCount(name) > CoachNameLimit)
        return "A coach's name can have at most 20 characters.";
    if (std::ranges::any_of(name, isForbiddenInFileNames))
        return "A coach's name can hold letters, digits and signs other than / \\ \" : * ? < > |.";
    if (name.ends_with('.'))
        return "A coach's name cannot end in a point.";
    if (isDeviceName(name))
        return "\"" + name + "\" is a name that Windows keeps for a device; a coach needs another one.";
    return std::nullopt;
}

void createCoach(Files& files, const std::string& name) {
    files.makeFolder(paths::coachFolder(name));
    clearCoach(files, name);
}

void renameCoach(Files& files, const std::string& from, const std::string& to) {
    files.makeFolder(paths::coachFolder(to));
    for (const std::string& file : files.filesIn(paths::coachFolder(from)))
        files.write(paths::coachFile(to, file), files.read(paths::coachFile(from, file)));
    deleteCoach(files, from);
}

void deleteCoach(Files& files, const std::string& name) {
    for (const std::string& file : files.filesIn(paths::coachFolder(name)))
        files.remove(paths::coachFile(name, file));
    files.removeFolder(paths::coachFolder(name));
}

} // namespace iceline
