#include "app/UnfinishedChange.h"

#include "shell/Application.h"

#include <ctime>
#include <iomanip>
#include <sstream>

namespace iceline {

namespace {

/// "Unfinished Changes 2026-11-23 14.05.09.journal", in local time.
std::string nameForNow() {
    const std::time_t now = std::time(nullptr);
    std::ostringstream name;
    name << "Unfinished Changes " << std::put_time(std::localtime(&now), "%Y-%m-%d %H.%M.%S") << ".journal";
    return name.str();
}

bool isOk(Application& app, const std::string& question) {
    return app.platform().ask({question, Buttons::OkCancel, "Unfinished change"}) == Answer::Ok;
}

void tell(Application& app, Recovery recovery, const char* finished) {
    if (recovery == Recovery::Finished)
        app.platform().say(finished);
    if (recovery == Recovery::Dropped)
        app.platform().say("The last change to the league was interrupted before it could be saved. "
                           "The league is as it was before that change.");
}

constexpr const char* NowFinished = "The last change to the league has now been finished.";

} // namespace

void recoverAtStart(Application& app) {
    tell(app, app.journal().recover(),
         "The last change to the league was interrupted. It has now been finished.");
}

void recoverOnRequest(Application& app) {
    const Recovery recovery = app.journal().recover();
    if (recovery == Recovery::Nothing)
        app.platform().say("No change to the league is unfinished.");
    tell(app, recovery, NowFinished);
}

bool settleUnfinishedChange(Application& app) {
    if (isOk(app, "Set the unfinished change aside? It is then never made, and the files of the league stay "
                  "as they are now.")) {
        const std::string name = nameForNow();
        app.journal().setAside(name);
        app.platform().say("The unfinished change is set aside in \"" + name + "\".");
        return true;
    }
    if (app.journal().isOfLaterVersion() || !isOk(app, "Make the unfinished change all the same?"))
        return false;
    tell(app, app.journal().recover(Doubts::Ignore), NowFinished);
    return true;
}

} // namespace iceline
