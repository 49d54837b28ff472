#pragma once

#include "preview/SitePreview.h"

#include <QUrl>

#include <filesystem>
#include <optional>
#include <thread>

namespace iceline::desktop {

/// The preview of the site, served beside the windows from its first use to the end of the program.
class PreviewServer {
public:
    /// `folder` is the published site.
    explicit PreviewServer(std::filesystem::path folder) : folder_(std::move(folder)) {}
    ~PreviewServer();
    PreviewServer(const PreviewServer&) = delete;
    PreviewServer& operator=(const PreviewServer&) = delete;

    /// Where the site is shown: at the port that `iceline preview` takes, or at another when that is in use.
    /// Throws PreviewError.
    QUrl show();

private:
    void start();

    std::filesystem::path folder_;
    std::optional<SitePreview> preview_;
    std::thread thread_;
};

} // namespace iceline::desktop
