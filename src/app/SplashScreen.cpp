#include "app/SplashScreen.h"

#include "shell/ApplicationState.h"

namespace iceline {

namespace {

constexpr int Step = 40;
constexpr int HoldTicks = 10;
constexpr int RolledOut = -2290;
constexpr int StartAgain = 1200;

bool holdsAt(int top) {
    return top == 0 || top == -1680;
}

} // namespace

void SplashScreen::Timer2_Timer() {
    if (holdsAt(top_) && pause_ < HoldTicks) {
        ++pause_;
    } else {
        top_ -= Step;
        pause_ = 0;
    }
    if (top_ < RolledOut) {
        top_ = StartAgain;
        state_.SplashDone = true;
    }
}

} // namespace iceline
