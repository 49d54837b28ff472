#include "shell/Application.h"

#include "files/FileError.h"
#include "log/HistoryLog.h"

namespace iceline {

Application::Application(Files& disk, Files& siteTemplate, Platform& platform, WindowCatalogue catalogue)
    : inForce_{&disk}, siteTemplate_(siteTemplate), platform_(platform), journal_(disk),
      log_(std::make_unique<HistoryLog>()), windows_(*this, catalogue) {}

Application::~Application() = default;

void Application::requireChangeable() const {
    if (lookOnly_)
        throw FileError::about("the league", "is only looked at, so nothing can be changed");
}

Operation::Operation(Application& application)
    : app_(application), outermost_(!application.operationInHand()), under_(application.files()),
      staged_(under_), inForce_(application, staged_) {
    app_.requireChangeable();
    if (outermost_)
        app_.journal().recover();
    ++app_.operations_;
}

void Operation::commit() {
    const std::vector<Change> changes = staged_.changes();
    if (outermost_) {
        app_.journal().commit(changes);
        app_.committed_ += changes.empty() ? 0 : 1;
    } else
        for (const Change& change : changes)
            makeChange(change, under_);
    staged_.discard();
}

} // namespace iceline
