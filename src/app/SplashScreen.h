#pragma once

namespace iceline {

struct ApplicationState;

/// The rolling credits of the splash window. Lengths are in the credits' own units, 15 to a pixel.
class SplashScreen {
public:
    static constexpr int UnitsPerPixel = 15;
    static constexpr int TickMilliseconds = 50;
    static constexpr int CreditsHeight = 2295;

    explicit SplashScreen(ApplicationState& state) : state_(state) {}

    /// Moves the credits on by one tick: they hold for ten ticks at two places, and once they have rolled out
    /// at the top SplashDone is set and they start again from below.
    void Timer2_Timer();

    /// Top of the credits, from the top of the visible area.
    int top() const { return top_; }

private:
    ApplicationState& state_;
    int top_ = 1320;
    int pause_ = 0;
};

} // namespace iceline
