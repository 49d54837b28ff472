#pragma once

namespace iceline {

/// The two parts of a league's year. Twin windows, files and pages are the same thing for the one or the
/// other.
enum class PartOfYear { Season, Playoffs };

} // namespace iceline
