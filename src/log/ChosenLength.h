#pragma once

#include "log/Baseline.h"
#include "log/Chronicle.h"

#include <string>

namespace iceline {

/// The length of the regular season as it was last chosen: -1, by which it is ended by hand, does not count.
class ChosenLength {
public:
    explicit ChosenLength(const FileContents& baseline);

    /// Goes on with the next step of the history.
    void follow(const Step& step);

    int games() const { return games_; }

private:
    void takeFile(const std::string& content);

    int games_;
};

/// What a league's history says of it.
ChosenLength chosenLength(Files& files);

} // namespace iceline
