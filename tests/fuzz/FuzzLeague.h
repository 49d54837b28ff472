#pragma once

#include "app/Catalogue.h"
#include "files/FileError.h"
#include "games/StatExtractor.h"
#include "support/TestLeague.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

namespace iceline::test {

/// Tells the fuzzer that the program has broken a promise.
inline void require(bool holds, const std::string& promise) {
    if (holds)
        return;
    std::cerr << "broken: " << promise << '\n';
    std::abort();
}

/// Selects and imports a season game whose save state lies at `path`. True when a file error broke the
/// import; one that comes up after it, when the season is looked at, leaves the game in the books.
inline bool importFails(TestLeague& league, const std::string& path) {
    try {
        StatExtractor& window = StatExtractor::in(league.app);
        window.Exhibition = false;
        window.Season = true;
        window.T1Coach = 1;
        league.platform.chosen.push_back(path);
        window.LoadStats_Click();
        window.ImportStats_Click();
    } catch (const FileError&) {
        const auto said = league.said();
        return std::ranges::find(said, "The game has been imported and stats have been saved.") == said.end();
    }
    return false;
}

/// Opens every window of the league. True when a file error kept one from it.
inline bool windowsFail(TestLeague& league) {
    try {
        for (const CatalogueRow& row : windowCatalogue())
            league.app.windows().use(row.id);
    } catch (const FileError&) {
        return true;
    }
    return false;
}

} // namespace iceline::test
