#include "desktop/PreviewServer.h"

#include <QString>

namespace iceline::desktop {

PreviewServer::~PreviewServer() {
    if (!thread_.joinable())
        return;
    preview_->stop();
    thread_.join();
}

QUrl PreviewServer::show() {
    if (!preview_)
        start();
    return QUrl(QString::fromStdString(preview_->address()));
}

void PreviewServer::start() {
    try {
        preview_.emplace(folder_, SitePreview::DefaultPort);
    } catch (const PreviewError&) {
        preview_.emplace(folder_, 0);
    }
    thread_ = std::thread([this] { preview_->serve(); });
}

} // namespace iceline::desktop
