#include "desktop/WelcomeWindow.h"

#include "desktop/Controls.h"
#include "desktop/Guard.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "shell/WelcomeWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace iceline::desktop {

WelcomeWindow::WelcomeWindow(Application& application) : app_(application), desk_(application) {
    setObjectName(QStringLiteral("WelcomeWindow"));
    setWindowTitle(QStringLiteral("Welcome to the Iceline Scorebook 3.0 - Rinkstar Version"));
    setWindowIcon(QIcon(pictures::named("iceline")));
    layOut();
    timer1_.setInterval(1);
}

void WelcomeWindow::layOut() {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(24, 24, 24, 24);
    columns->setSpacing(24);
    columns->addWidget(makeCatalogue(), 1);

    auto* side = new QVBoxLayout;
    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Picture1"));
    picture->setPixmap(pictures::named("league-logo"));
    picture->setAlignment(Qt::AlignCenter);
    side->addWidget(picture);
    side->addStretch();
    auto* publish = new QPushButton(QStringLiteral("Generate Webpages"), this);
    publish->setObjectName(QStringLiteral("Command1"));
    connect(publish, &QPushButton::clicked, this,
            [this] { guarded(this, [this] { iceline::WelcomeWindow(app_).Command1_Click(); }); });
    side->addWidget(publish);
    auto* exit = new QPushButton(QStringLiteral("E&xit"), this);
    exit->setObjectName(QStringLiteral("Command7"));
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    side->addWidget(exit);
    columns->addLayout(side);
}

QListWidget* WelcomeWindow::makeCatalogue() {
    auto* list = new QListWidget(this);
    list->setObjectName(QStringLiteral("List1"));
    list->setMinimumWidth(260);
    for (const CatalogueRow& row : windowCatalogue()) {
        auto* entry = new QListWidgetItem(toQt(row.entry), list);
        entry->setData(Qt::UserRole, static_cast<int>(row.id));
    }
    list->setMinimumHeight(list->sizeHintForRow(0) * list->count() + 2 * list->frameWidth());
    connect(list, &QListWidget::itemClicked, this, &WelcomeWindow::openRow);
    connect(list, &QListWidget::itemActivated, this, &WelcomeWindow::openRow);
    return list;
}

void WelcomeWindow::openRow(QListWidgetItem* row) {
    const auto id = static_cast<WindowId>(row->data(Qt::UserRole).toInt());
    guarded(this, [this, id] { desk_.open(id); });
}

void WelcomeWindow::waitForSplash(std::function<void()> shown) {
    connect(&timer1_, &QTimer::timeout, this, [this, shown = std::move(shown)] {
        if (!app_.state.SplashDone)
            return;
        timer1_.stop();
        adjustSize();
        centreOnScreen(*this);
        show();
        shown();
    });
    timer1_.start();
}

void WelcomeWindow::closeEvent(QCloseEvent* event) {
    app_.windows().unloadAll();
    event->accept();
    QApplication::quit();
}

} // namespace iceline::desktop
