#include "cli/Command.h"
#include "files/FileError.h"
#include "files/Journal.h"

#include <ctime>
#include <iomanip>
#include <sstream>

namespace iceline::cli {

namespace {

Status say(Session& session, Recovery recovery) {
    switch (recovery) {
    case Recovery::Nothing:
        session.platform().say("No change to the league is unfinished.");
        break;
    case Recovery::Finished:
        session.platform().say("The last change to the league has now been finished.");
        break;
    case Recovery::Dropped:
        session.platform().say("The last change to the league was interrupted before it could be saved. "
                               "The league is as it was before that change.");
        break;
    }
    return Status::Done;
}

/// "Unfinished Changes 2026-11-23 14.05.09.journal", in local time.
std::string nameForNow() {
    const std::time_t now = std::time(nullptr);
    std::ostringstream name;
    name << "Unfinished Changes " << std::put_time(std::localtime(&now), "%Y-%m-%d %H.%M.%S") << ".journal";
    return name.str();
}

bool isOk(Session& session, const std::string& question) {
    return session.platform().ask({question, Buttons::OkCancel, "Unfinished change"}) == Answer::Ok;
}

Status recover(Session& session, const NoArguments&) {
    session.takeLeague();
    Journal& journal = session.app().journal();
    try {
        return say(session, journal.recover());
    } catch (const FileError& error) {
        report(session.console(), error.what());
    }
    if (isOk(session,
             "Set the unfinished change aside? It is then never made, and the files of the league stay "
             "as they are now.")) {
        const std::string name = nameForNow();
        journal.setAside(name);
        session.platform().say("The unfinished change is set aside in \"" + name + "\".");
        return Status::Done;
    }
    if (isOk(session, "Make the unfinished change all the same?"))
        return say(session, journal.recover(Doubts::Ignore));
    return Status::Refused;
}

} // namespace

void addRecoverCommand(CLI::App& program, Call& call) {
    addCommand(program, call, "recover", "Finish a change that could not be finished, or set it aside",
               recover, Works::Alone);
}

} // namespace iceline::cli
