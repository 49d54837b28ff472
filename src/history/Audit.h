#pragma once

#include "log/Baseline.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

class Application;

/// An item of a file that is not what the history makes of it.
struct FieldDifference {
    int line = 0;         ///< from 1
    int item = 0;         ///< in its line, from 1
    std::string holder;   ///< the player whose line it is; "" when the file has one holder, or none
    std::string name;     ///< of the field, "" when it has none
    std::string found;    ///< "" also where the file has no such item
    std::string expected; ///< in the same way
    std::string since;    ///< the operation by which it came to be so, as titleOf(); "" for none
};

/// A file that is not what the history makes of it.
struct Difference {
    std::string path;
    std::optional<std::string> found;    ///< none: there is no such file
    std::optional<std::string> expected; ///< none: there should be none
    std::vector<FieldDifference> fields; ///< when there is one and should be one
};

/// The books as they follow from the history, and how the league's files differ from them.
struct Audit {
    std::size_t files = 0; ///< compared
    std::vector<Difference> differences;
};

/// Throws HistoryRefusal for a league without a history.
Audit auditBooks(Application& app);

/// Makes what the files are now part of the history, or writes what the history gives, after a copy of the
/// league.
void acceptDifferences(Application& app, const Audit& audit);
void repairDifferences(Application& app, const Audit& audit);

/// A sentence for each field that differs, or one for a file that is missing or should not be there.
std::vector<std::string> textsOf(const Difference& difference);

} // namespace iceline
