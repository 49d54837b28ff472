#include "app/Catalogue.h"
#include "app/WelcomeWindow.h"
#include "cli/Command.h"
#include "cli/WindowPrinters.h"

namespace iceline::cli {

namespace {

struct Opening {
    std::string window;
    bool json = false;
};

WindowId windowNamed(const std::string& name) {
    if (const auto id = windowByName(name))
        return *id;
    std::string names;
    for (const CatalogueRow& row : windowCatalogue())
        names += (names.empty() ? "" : ", ") + std::string(row.name);
    throw UsageError("there is no window '" + name + "'; there are " + names);
}

Status openWindow(Session& session, const Opening& opening) {
    const WindowId id = windowNamed(opening.window);
    const Window& window = WelcomeWindow(session.app()).List1_Click(id);
    session.print([&](Printout& out) { windowPrinter(id)(window, out); }, opening.json);
    return Status::Done;
}

Status closeWindow(Session& session, const std::string& name) {
    session.app().windows().unload(windowNamed(name));
    return Status::Done;
}

} // namespace

void addWindowCommands(CLI::App& program, Call& call) {
    const auto [open, opening] = addCommand<Opening>(
        program, call, "open", "Open a window and print what it shows", openWindow, Works::Looking);
    addArgument(*open, "WINDOW", opening->window, "its name in the catalogue, for instance Standings");
    open->add_flag("--json", opening->json, "as JSON");
    const auto [close, closed] =
        addCommand<std::string>(program, call, "close", "Close a window", closeWindow, Works::Looking);
    addArgument(*close, "WINDOW", *closed, "its name in the catalogue");
}

} // namespace iceline::cli
