#pragma once

namespace iceline {

/// While one lives, the signals that ask the program to end (SIGINT, SIGTERM, SIGHUP) are remembered instead
/// of ending it at once, so that a run can end after the item in hand. A second SIGINT ends the program as
/// ever. A signal that the program ignores goes on being ignored. They nest; one thread uses them.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    /// The signal that came since the outermost was made, 0 when none did.
    static int received();
};

/// From now on a write beyond the system's limit of a file's size, or to a pipe that nobody reads any more,
/// fails as an error that can be reported instead of ending the program.
void ignoreSignalsOfWrites();

} // namespace iceline
