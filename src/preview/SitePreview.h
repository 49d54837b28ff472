#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace iceline {

/// The port cannot be had. what() is one line that names it and says why.
class PreviewError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A web server that shows the published site to browsers on this machine, and to nobody else: it listens on
/// the loopback address alone, answers to its names alone, takes GET and HEAD, and reads the files again for
/// each request.
class SitePreview {
public:
    /// The port that is taken when the user names none.
    static constexpr unsigned short DefaultPort = 8080;

    /// Listens for the site in `folder`, which need not be published yet. Port 0 takes any that is free.
    /// Throws PreviewError.
    SitePreview(const std::filesystem::path& folder, unsigned short port);
    ~SitePreview();
    SitePreview(const SitePreview&) = delete;
    SitePreview& operator=(const SitePreview&) = delete;

    /// "http://127.0.0.1:8080/"
    std::string address() const;

    /// Answers browsers until stop().
    void serve();

    /// Ends serve(); safe to call from another thread.
    void stop();

    /// From now on an interrupt (Ctrl+C) or a request of the system to end stops the preview, not the
    /// program.
    void stopOnSignals();

private:
    class Server;
    std::unique_ptr<Server> server_;
};

} // namespace iceline
