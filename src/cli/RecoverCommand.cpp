#include "app/UnfinishedChange.h"
#include "cli/Command.h"
#include "files/FileError.h"

namespace iceline::cli {

namespace {

Status recover(Session& session, const NoArguments&) {
    session.takeLeague();
    try {
        recoverOnRequest(session.app());
        return Status::Done;
    } catch (const FileError& error) {
        report(session.console(), error.what());
    }
    return settleUnfinishedChange(session.app()) ? Status::Done : Status::Refused;
}

} // namespace

void addRecoverCommand(CLI::App& program, Call& call) {
    addCommand(program, call, "recover", "Finish a change that could not be finished, or set it aside",
               recover, Works::Alone);
}

} // namespace iceline::cli
