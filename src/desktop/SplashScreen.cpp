#include "desktop/SplashScreen.h"

#include "desktop/Pictures.h"
#include "shell/ApplicationState.h"

#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

using Credits = iceline::SplashScreen;

constexpr int CreditsWidth = 320;
constexpr int VisibleHeight = 1320 / Credits::UnitsPerPixel;

struct CreditLine {
    const char* name;
    const char* text;
    bool isHead;
};

constexpr CreditLine Lines[] = {
    {"Label1", "Programming by", true},
    {"Label2", "the Iceline Scorebook authors", false},
    {"Label3", "for everyone who keeps a league's books", false},
    {"Label4", "Special Thanks to", true},
    {"Label5", "all who play the games", false},
};

} // namespace

SplashScreen::SplashScreen(ApplicationState& state, std::function<void()> load)
    : QWidget(nullptr, Qt::SplashScreen), state_(state), credits_(state) {
    setObjectName(QStringLiteral("SplashScreen"));
    layOut();
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setSingleShot(true);
    timer1_.setInterval(1);
    connect(&timer1_, &QTimer::timeout, this, std::move(load));
    timer2_.setObjectName(QStringLiteral("Timer2"));
    timer2_.setInterval(Credits::TickMilliseconds);
    connect(&timer2_, &QTimer::timeout, this, [this] {
        credits_.Timer2_Timer();
        moveCredits();
    });
}

void SplashScreen::startTimers() {
    activateWindow();
    timer1_.start();
    timer2_.start();
}

void SplashScreen::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 28, 32, 28);
    auto* logo = new QLabel(this);
    logo->setPixmap(pictures::named("league-logo"));
    logo->setAlignment(Qt::AlignCenter);
    column->addWidget(logo);

    frame1_ = new QFrame(this);
    frame1_->setObjectName(QStringLiteral("Frame1"));
    frame1_->setFixedSize(CreditsWidth, VisibleHeight);
    column->addWidget(frame1_, 0, Qt::AlignCenter);

    frame2_ = new QFrame(frame1_);
    frame2_->setObjectName(QStringLiteral("Frame2"));
    frame2_->resize(CreditsWidth, Credits::CreditsHeight / Credits::UnitsPerPixel);
    auto* lines = new QVBoxLayout(frame2_);
    for (const CreditLine& line : Lines) {
        auto* label = new QLabel(QString::fromUtf8(line.text), frame2_);
        label->setObjectName(QLatin1String(line.name));
        label->setProperty("role", line.isHead ? QStringLiteral("creditHead") : QStringLiteral("credit"));
        label->setAlignment(Qt::AlignCenter);
        lines->addWidget(label);
    }
    moveCredits();
    adjustSize();
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void SplashScreen::moveCredits() {
    frame2_->move(0, credits_.top() / Credits::UnitsPerPixel);
}

void SplashScreen::mousePressEvent(QMouseEvent*) {
    state_.SplashDone = true;
}

void SplashScreen::keyPressEvent(QKeyEvent*) {
    state_.SplashDone = true;
}

} // namespace iceline::desktop
