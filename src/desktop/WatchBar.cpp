#include "desktop/WatchBar.h"

#include "desktop/Controls.h"
#include "desktop/Guard.h"
#include "desktop/QtPlatform.h"
#include "shell/Application.h"

#include <QApplication>
#include <QHBoxLayout>

#include <utility>

namespace iceline::desktop {

WatchBar::WatchBar(Application& application, std::function<void(const std::string&)> import, QWidget* parent)
    : QFrame(parent), app_(application), import_(std::move(import)) {
    setObjectName(QStringLiteral("WatchBar"));
    setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(text_ = textLabel(QStringLiteral("WatchText"), this), 1);
    text_->setWordWrap(true);
    importButton_ = addButton("WatchImport", QStringLiteral("I&mport"), &WatchBar::importGame);
    ignoreButton_ = addButton("WatchIgnore", QStringLiteral("I&gnore"), &WatchBar::ignore);
    addButton("WatchStop", QStringLiteral("Stop &Watching"), &WatchBar::stop);
    connect(&timer_, &QTimer::timeout, this, [this] { look(std::chrono::steady_clock::now()); });
    hide();
}

QPushButton* WatchBar::addButton(const char* name, const QString& caption, void (WatchBar::*click)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    connect(button, &QPushButton::clicked, this, click);
    layout()->addWidget(button);
    return button;
}

void WatchBar::chooseFolder() {
    guarded(this, [this] {
        const auto folder = app_.platform().chooseFolder("Select folder to watch");
        if (!folder)
            return;
        folder_.emplace(*folder);
        waiting_.clear();
        timer_.start(FolderWatch::Pause);
        showFront();
    });
}

void WatchBar::stop() {
    timer_.stop();
    folder_.reset();
    hide();
}

void WatchBar::look(FolderWatch::Time now) {
    if (!folder_ || QApplication::activeModalWidget())
        return;
    if (!guarded(this, [&] { take(folder_->wholeFiles(now)); }))
        stop();
    else if (app_.operationsCommitted() != committed_)
        lookAgain();
}

void WatchBar::take(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        std::erase_if(waiting_, [&](const WatchedGame& game) { return game.path == path; });
        if (auto game = games_.look(app_, path))
            waiting_.push_back(std::move(*game));
    }
    if (!paths.empty())
        showFront();
}

/// A game that has come into the books is no longer offered.
void WatchBar::lookAgain() {
    committed_ = app_.operationsCommitted();
    std::vector<std::string> paths;
    for (const WatchedGame& game : waiting_)
        if (!game.refusal)
            paths.push_back(game.path);
    take(paths);
}

void WatchBar::importGame() {
    import_(std::string(waiting_.front().path));
    lookAgain();
}

void WatchBar::ignore() {
    waiting_.erase(waiting_.begin());
    showFront();
}

void WatchBar::showFront() {
    if (waiting_.empty())
        text_->setText(QStringLiteral("Watching %1").arg(toQt(folder_->folder())));
    else
        text_->setText(toQt(waiting_.front().refusal.value_or(waiting_.front().score)));
    importButton_->setVisible(!waiting_.empty() && !waiting_.front().refusal);
    ignoreButton_->setVisible(!waiting_.empty());
    setVisible(true);
}

} // namespace iceline::desktop
