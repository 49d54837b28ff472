#pragma once

#include <string>

namespace iceline {

class Application;

/// Writes the league's data for other programs into a folder, an absolute path, which is made when it is
/// missing: each table as CSV and as JSON; docs/data-export.md describes them. Files of these names are
/// replaced, each as a whole, and others left alone; nothing is written before all tables are made. Returns
/// how many files were written. Throws FileError, also where the history is damaged.
int exportData(Application& app, const std::string& folder);

} // namespace iceline
