#include "coaches/Coaches.h"

#include "books/Clearing.h"
#include "store/LeaguePaths.h"
#include "text/Names.h"
#include "text/Text.h"

#include <algorithm>

namespace iceline {

std::vector<std::string> coachNames(Files& files) {
    return files.foldersIn(paths::Coaches);
}

std::optional<std::string> findCoach(Files& files, const std::string& name) {
    const std::vector<std::string> coaches = coachNames(files);
    auto coach = std::ranges::find(coaches, name);
    if (coach == coaches.end())
        coach = std::ranges::find_if(coaches, [&](const auto& c) { return sameName(c, name); });
    return coach == coaches.end() ? std::nullopt : std::optional(*coach);
}

std::string storedCoachName(std::string name) {
    std::ranges::replace(name, ' ', '_');
    return name;
}

std::optional<std::string> coachNameProblem(const std::string& name) {
    if (characterCount(name) > CoachNameLimit)
        return "A coach's name can have at most 20 characters.";
    const auto problem = namingProblem(name);
    return problem ? std::optional("A coach's name " + *problem + ".") : std::nullopt;
}

void createCoach(Files& files, const std::string& name) {
    files.makeFolder(paths::coachFolder(name));
    clearCoach(files, name);
}

void renameCoach(Files& files, const std::string& from, const std::string& to) {
    files.rename(paths::coachFolder(from), paths::coachFolder(to));
}

void deleteCoach(Files& files, const std::string& name) {
    for (const std::string& file : files.filesIn(paths::coachFolder(name)))
        files.remove(paths::coachFile(name, file));
    files.removeFolder(paths::coachFolder(name));
}

} // namespace iceline
