#pragma once

namespace iceline {

class Application;

/// Rewrites the whole site from the league's files: each window's pages, then rosters and player pages. The
/// open windows that take part are closed first. A page whose text has not changed is left alone.
///
/// Throws FileError before anything is written when a folder of the site's template is missing, and later
/// when a file cannot be read or a page not be written. A page is written whole or not at all, and
/// ShowWindows is True afterwards in any case.
void generateWebpages(Application& app);

/// The same without a word at its end; false when the user stopped the run.
bool writeSite(Application& app);

} // namespace iceline
