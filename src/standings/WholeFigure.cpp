#include "standings/WholeFigure.h"

#include "files/FileError.h"
#include "league/Numbers.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <cmath>

namespace iceline {

namespace {

/// The range of a whole number of 16 bits.
constexpr double Lowest = std::numeric_limits<std::int16_t>::min();
constexpr double Highest = std::numeric_limits<std::int16_t>::max();

} // namespace

int wholeFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*figure, int scale) {
    const double value = std::nearbyint(record.*figure * scale);
    if (value >= Lowest && value <= Highest)
        return static_cast<int>(value);
    const auto fields = fieldsOf<TeamRecord>();
    const auto field =
        std::ranges::find(fields, Field<TeamRecord>::Member(figure), &Field<TeamRecord>::member);
    throw FileError::malformed(paths::teamFile(team, PartOfYear::Season, paths::Records), 1,
                               static_cast<int>(field - fields.begin()) + 1, std::string(field->name),
                               numberText(record.*figure) + " is more than the standings can hold");
}

} // namespace iceline
