#include "app/Catalogue.h"
#include "app/WelcomeWindow.h"
#include "cli/Command.h"
#include "cli/WindowPrinters.h"

namespace iceline::cli {

namespace {

WindowId windowNamed(const std::string& name) {
    if (const auto id = windowByName(name))
        return *id;
    std::string names;
    for (const CatalogueRow& row : windowCatalogue())
        names += (names.empty() ? "" : ", ") + std::string(row.name);
    throw UsageError("there is no window '" + name + "'; there are " + names);
}

Status openWindow(Session& session, const std::string& name) {
    const WindowId id = windowNamed(name);
    windowPrinter(id)(WelcomeWindow(session.app()).List1_Click(id), session.out());
    return Status::Done;
}

Status closeWindow(Session& session, const std::string& name) {
    session.app().windows().unload(windowNamed(name));
    return Status::Done;
}

} // namespace

void addWindowCommands(CLI::App& program, Call& call) {
    const auto [open, opened] = addCommand<std::string>(
        program, call, "open", "Open a window and print what it shows", openWindow, Works::Looking);
    addArgument(*open, "WINDOW", *opened, "its name in the catalogue, for instance Standings");
    const auto [close, closed] =
        addCommand<std::string>(program, call, "close", "Close a window", closeWindow, Works::Looking);
    addArgument(*close, "WINDOW", *closed, "its name in the catalogue");
}

} // namespace iceline::cli
