#include "shell/Application.h"

namespace iceline {

namespace {

void apply(const std::vector<Change>& changes, Files& files) {
    for (const Change& change : changes) {
        switch (change.kind) {
        case Change::Kind::MakeFolder:
            files.makeFolder(change.path);
            break;
        case Change::Kind::Write:
            files.write(change.path, change.content);
            break;
        case Change::Kind::Extend:
            files.extend(change.path, change.length, change.content);
            break;
        case Change::Kind::Remove:
            files.remove(change.path);
            break;
        case Change::Kind::RemoveFolder:
            files.removeFolder(change.path);
            break;
        }
    }
}

} // namespace

Application::Application(Files& disk, Files& siteTemplate, Platform& platform)
    : inForce_{&disk}, siteTemplate_(siteTemplate), platform_(platform), journal_(disk), windows_(*this) {}

Operation::Operation(Application& application)
    : app_(application), outermost_(!application.operationInHand()), beneath_(application.files()),
      staged_(beneath_), inForce_(application, staged_) {
    ++app_.operations_;
}

void Operation::commit() {
    const std::vector<Change> changes = staged_.changes();
    if (outermost_)
        app_.journal().commit(changes);
    else
        apply(changes, beneath_);
    staged_.discard();
}

} // namespace iceline
