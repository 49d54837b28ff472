#pragma once

namespace iceline {

class Application;

/// Loads the main window: finishes or drops a journal that a broken run has left, creates what is missing of
/// the league after one question, reads SeasonLength and works out the state of the season. Returns false
/// when the user answered the question with Cancel: the program then ends. Throws FileError when a file
/// cannot be made or read.
bool startUp(Application& app);

} // namespace iceline
