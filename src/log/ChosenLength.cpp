#include "log/ChosenLength.h"

#include "log/HistoryLog.h"
#include "store/InitialFiles.h"
#include "store/LeaguePaths.h"

#include <charconv>

namespace iceline {

ChosenLength::ChosenLength(const FileContents& baseline) : games_(SeasonLengthAtStart) {
    const auto file = baseline.find(paths::GamesUntilPlayoffs);
    if (file != baseline.end())
        takeFile(file->second);
}

void ChosenLength::takeFile(const std::string& content) {
    int length = 0;
    const auto read = std::from_chars(content.data(), content.data() + content.size(), length);
    if (read.ec == std::errc() && length >= 0)
        games_ = length;
}

void ChosenLength::follow(const Step& step) {
    if (step.undone)
        return;
    const LoggedOperation& operation = step.entry.operation;
    if (const auto* set = std::get_if<SeasonLengthSet>(&operation); set && set->length >= 0)
        games_ = set->length;
    if (const auto* cleared = std::get_if<StatsCleared>(&operation); cleared && cleared->team == AllTeams)
        games_ = SeasonLengthAtStart;
    if (const auto* accepted = std::get_if<FilesAccepted>(&operation))
        for (const AcceptedFile& file : accepted->files)
            if (file.path == paths::GamesUntilPlayoffs && file.content)
                takeFile(*file.content);
}

ChosenLength chosenLength(Files& files) {
    ChosenLength length(readBaseline(files));
    for (const Step& step : readHistory(files))
        length.follow(step);
    return length;
}

} // namespace iceline
