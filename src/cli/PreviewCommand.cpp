#include "cli/Command.h"
#include "preview/SitePreview.h"

namespace iceline::cli {

namespace {

/// The league is free meanwhile: what is published while the preview runs is seen at once.
Status preview(Session& session, const unsigned short& port) {
    session.end();
    try {
        SitePreview site(session.siteFolder(), port);
        site.stopOnSignals();
        session.out() << "Preview of the site: " << site.address() << "\nCtrl+C ends it." << std::endl;
        site.serve();
    } catch (const PreviewError& error) {
        report(session.console(), error.what());
        return Status::Refused;
    }
    return Status::Done;
}

} // namespace

void addPreviewCommand(CLI::App& program, Call& call) {
    const auto [command, port] = addCommand<unsigned short>(
        program, call, "preview", "Show the web site to browsers on this machine until it is stopped",
        preview, Works::Looking);
    *port = SitePreview::DefaultPort;
    command->add_option("--port", *port, "the port to serve it at; 0 takes any that is free")
        ->type_name("N")
        ->check(wholeNumber<unsigned short>(0))
        ->capture_default_str();
}

} // namespace iceline::cli
