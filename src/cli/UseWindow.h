#pragma once

#include "cli/Session.h"

#include <algorithm>
#include <string>

namespace iceline::cli {

/// The window object of the catalogue, loaded.
template <class Kind>
Kind& use(Session& session, WindowId id) {
    return static_cast<Kind&>(session.app().windows().use(id));
}

/// A coach by the name that the user gave, whatever its blanks and case. Throws UsageError when there is no
/// such coach.
std::string knownCoach(Session& session, const std::string& name);

/// The index of a coach in a window's list of coaches. A window that was loaded before the coach came is
/// loaded again. Throws UsageError when there is no such coach.
template <class Kind>
int indexOfCoach(Session& session, WindowId id, const std::string& name) {
    const std::string coach = knownCoach(session, name);
    if (std::ranges::count(use<Kind>(session, id).content().coaches, coach) == 0)
        session.app().windows().unload(id);
    const auto& coaches = use<Kind>(session, id).content().coaches;
    return static_cast<int>(std::ranges::find(coaches, coach) - coaches.begin());
}

} // namespace iceline::cli
