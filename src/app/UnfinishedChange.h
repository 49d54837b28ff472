#pragma once

namespace iceline {

class Application;

/// Finishes or drops the change that a broken run has left, if there is one, and says so. Throws FileError as
/// Journal::recover() does.
void recoverAtStart(Application& app);

/// The same for a user who has asked for it: says also that there is none.
void recoverOnRequest(Application& app);

/// Settles a change that could not be finished so: asks whether to set it aside,
/// under a name with the time of day, and if not whether to make it all the same, where this version can.
/// False when the user wants neither; the league then stays as it is. Throws FileError when the change still
/// cannot be made.
bool settleUnfinishedChange(Application& app);

} // namespace iceline
