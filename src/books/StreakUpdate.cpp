#include "books/StreakUpdate.h"

namespace iceline {

void updateStreak(Streak& streak, const std::string& result) {
    streak.StreakCount = streak.StreakLetter == result ? streak.StreakCount + 1 : 1;
    streak.StreakLetter = result;
}

} // namespace iceline
