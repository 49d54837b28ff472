#include "standings/WholeFigure.h"

#include "files/FileError.h"
#include "league/Numbers.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <cmath>

namespace iceline {

namespace {

/// A season has at most 32,767 games, and no figure worked out from them is more than twice that.
constexpr double LargestFigure = 65535;

} // namespace

int wholeFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*figure, int scale) {
    if (std::fabs(record.*figure) <= LargestFigure)
        return wholeNumber(record.*figure * scale);
    const auto fields = fieldsOf<TeamRecord>();
    const auto field =
        std::ranges::find(fields, Field<TeamRecord>::Member(figure), &Field<TeamRecord>::member);
    throw FileError::malformed(paths::teamFile(team, PartOfYear::Season, paths::Records), 1,
                               static_cast<int>(field - fields.begin()) + 1, std::string(field->name),
                               numberText(record.*figure) + " is more than the standings can hold");
}

} // namespace iceline
