#include "desktop/WelcomeWindow.h"

#include "app/Catalogue.h"
#include "app/ProgramFolder.h"
#include "app/WelcomeWindow.h"
#include "desktop/Controls.h"
#include "desktop/Guard.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "files/NativePath.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <string>

namespace iceline::desktop {

namespace {

std::string aboutText() {
    return "Iceline Scorebook " + fromQt(QApplication::applicationVersion()) +
           "\n\nKeeps the books of a hockey league.\n\nThe licences of the program and of what is in it:\n" +
           fromNative(licencesFile());
}

} // namespace

WelcomeWindow::WelcomeWindow(Application& application, PreviewServer& preview)
    : app_(application), preview_(preview), windows_(application), history_(application),
      menus_(new MainMenu(this)),
      watch_(new WatchBar(
          application, [this](const std::string& path) { importGame(path); }, this)) {
    setObjectName(QStringLiteral("WelcomeWindow"));
    setWindowTitle(QStringLiteral("Welcome to the Iceline Scorebook 3.0 - Rinkstar Version"));
    layOut();
    makeMenus();
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setInterval(1);
}

void WelcomeWindow::layOut() {
    auto* rows = new QVBoxLayout(page_.widget());
    rows->setContentsMargins(24, 24, 24, 24);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    rows->addLayout(columns, 1);
    rows->addWidget(watch_);
    columns->addWidget(makeCatalogue(), 1);

    auto* side = new QVBoxLayout;
    side->setSpacing(12);
    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Picture1"));
    picture->setPixmap(pictures::named("league-logo"));
    picture->setAlignment(Qt::AlignCenter);
    side->addWidget(picture);
    side->addWidget(makeTrophies());
    side->addStretch();
    connect(addButton(*side, QStringLiteral("Command1"), QStringLiteral("Generate Webpages")),
            &QPushButton::clicked, this, &WelcomeWindow::generateWebpages);
    connect(addButton(*side, QStringLiteral("PreviewSite"), QStringLiteral("Preview Site")),
            &QPushButton::clicked, this, &WelcomeWindow::previewSite);
    connect(addButton(*side, QStringLiteral("Command7"), QStringLiteral("E&xit")), &QPushButton::clicked,
            this, &QWidget::close);
    columns->addLayout(side);
}

void WelcomeWindow::makeMenus() {
    layout()->setMenuBar(menus_);
    QMenu& file = *menus_->addMenu(QStringLiteral("&File"));
    menus_->add(file, QStringLiteral("&Select Game..."), QStringLiteral("Ctrl+O"),
                [this] { inGameWindow(&StatExtractorWindow::selectGame); });
    menus_->add(file, QStringLiteral("&Import Game"), QStringLiteral("Ctrl+I"),
                [this] { inGameWindow(&StatExtractorWindow::importGame); });
    menus_->add(file, QStringLiteral("Import &Folder..."), QStringLiteral("Ctrl+Shift+O"),
                [this] { inGameWindow(&StatExtractorWindow::importFolder); });
    menus_->add(file, QStringLiteral("&Watch Folder..."), {}, [this] { watch_->chooseFolder(); });
    file.addSeparator();
    menus_->add(file, QStringLiteral("&Quit"), QStringLiteral("Ctrl+Q"), [this] { close(); });
    QMenu& league = *menus_->addMenu(QStringLiteral("&League"));
    menus_->add(league, QStringLiteral("&Generate Webpages"), QStringLiteral("Ctrl+G"),
                [this] { generateWebpages(); });
    menus_->add(league, QStringLiteral("&Preview Site"), {}, [this] { previewSite(); });
    league.addSeparator();
    menus_->add(league, QStringLiteral("&History..."), QStringLiteral("Ctrl+H"), [this] { showHistory(); });
    menus_->add(league, QStringLiteral("&Undo Last Operation"), QStringLiteral("Ctrl+Z"),
                [this] { history_.undoLast(); });
    menus_->add(league, QStringLiteral("&Redo"), QStringLiteral("Ctrl+Shift+Z"),
                [this] { history_.redoLast(); });
    QMenu& view = *menus_->addMenu(QStringLiteral("&View"));
    addWindowsTo(view);
    view.addSeparator();
    menus_->add(view, QStringLiteral("Read &Again"), QStringLiteral("F5"), [this] {
        app_.windows().renewOpen();
        history_.showAgain();
    });
    QMenu& help = *menus_->addMenu(QStringLiteral("&Help"));
    menus_->add(help, QStringLiteral("&About Iceline Scorebook"), {},
                [this] { app_.platform().say(aboutText()); });
}

/// The first nine windows have a digit's key.
void WelcomeWindow::addWindowsTo(QMenu& menu) {
    constexpr int Digits = 9;
    int number = 0;
    for (const CatalogueRow& row : windowCatalogue()) {
        ++number;
        const QString key = number <= Digits ? QStringLiteral("Ctrl+%1").arg(number) : QString();
        menus_->add(menu, toQt(row.entry), key, [this, id = row.id] { windows_.open(id); });
    }
}

StatExtractorWindow& WelcomeWindow::gameWindow() {
    windows_.open(WindowId::StatExtractor);
    return static_cast<StatExtractorWindow&>(*windows_.window(WindowId::StatExtractor));
}

/// A file dialog that closes gives the window back that it was opened from, so the game window is raised
/// after it.
void WelcomeWindow::inGameWindow(void (StatExtractorWindow::*action)()) {
    StatExtractorWindow& window = gameWindow();
    (window.*action)();
    window.raise();
    window.activateWindow();
}

void WelcomeWindow::importGame(const std::string& path) {
    guarded(this, [&] { gameWindow().importSlot(path); });
}

void WelcomeWindow::generateWebpages() {
    guarded(this, [this] { iceline::WelcomeWindow(app_).Command1_Click(); });
}

QPushButton* WelcomeWindow::addButton(QLayout& layout, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    layout.addWidget(button);
    return button;
}

QListWidget* WelcomeWindow::makeCatalogue() {
    auto* list = new QListWidget(this);
    list->setObjectName(QStringLiteral("List1"));
    for (const CatalogueRow& row : windowCatalogue()) {
        auto* entry = new QListWidgetItem(toQt(row.entry), list);
        entry->setData(Qt::UserRole, static_cast<int>(row.id));
    }
    list->ensurePolished();
    list->setMinimumSize(std::max(260, list->sizeHintForColumn(0) + 4 * list->frameWidth()),
                         list->sizeHintForRow(0) * list->count() + 4 * list->frameWidth());
    connect(list, &QListWidget::itemClicked, this, &WelcomeWindow::openRow);
    connect(list, &QListWidget::itemActivated, this, &WelcomeWindow::openRow);
    return list;
}

QFrame* WelcomeWindow::makeTrophies() {
    constexpr int Trophies = 14;
    constexpr int TrophiesInARow = 7;
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int number = 0; number < Trophies; ++number) {
        auto* trophy = new QLabel(frame);
        trophy->setPixmap(pictures::named(("trophies/" + std::to_string(number)).c_str()));
        trophy->setAlignment(Qt::AlignCenter);
        grid->addWidget(trophy, number / TrophiesInARow, number % TrophiesInARow);
    }
    return frame;
}

void WelcomeWindow::openRow(QListWidgetItem* row) {
    const auto id = static_cast<WindowId>(row->data(Qt::UserRole).toInt());
    guarded(this, [this, id] { windows_.open(id); });
}

void WelcomeWindow::previewSite() {
    try {
        const QUrl address = preview_.show();
        if (!QDesktopServices::openUrl(address))
            app_.platform().say("The site is shown to browsers on this machine at " +
                                fromQt(address.toString()) + ".");
    } catch (const PreviewError& error) {
        app_.platform().say(error.what());
    }
}

void WelcomeWindow::showHistory() {
    history_.showAgain();
    history_.setWindowState(history_.windowState() & ~Qt::WindowMinimized);
    history_.show();
    history_.raise();
    history_.activateWindow();
}

void WelcomeWindow::waitForSplash(std::function<void()> shown) {
    connect(&timer1_, &QTimer::timeout, this, [this, shown = std::move(shown)] {
        if (!app_.state.SplashDone)
            return;
        timer1_.stop();
        page_.fitWindow();
        show();
        shown();
    });
    timer1_.start();
}

void WelcomeWindow::closeEvent(QCloseEvent* event) {
    app_.windows().unloadAll();
    history_.close();
    event->accept();
    QApplication::quit();
}

} // namespace iceline::desktop
