#pragma once

#include "shell/Platform.h"

#include <deque>
#include <string>
#include <vector>

namespace iceline::test {

/// The platform for tests: answers from queues and records what was said.
class TestPlatform : public Platform {
public:
    /// The next queued answer; without one OK, or Yes to a question.
    Answer ask(const Message& message) override;
    std::optional<std::string> chooseFile(const std::string& title,
                                          const std::vector<FileFilter>& filters) override;
    std::optional<std::string> chooseFolder(const std::string& title) override;
    void setBusy(bool busy) override { busyDepth += busy ? 1 : -1; }
    double random() override { return randomNumber; }
    bool showProgress(const Progress& progress) override;
    void endProgress() override {}
    std::chrono::system_clock::time_point now() override { return clock; }

    /// Texts of the message boxes, in order.
    std::vector<std::string> said() const;

    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> chosen; ///< what the file and folder dialogs give; none is Cancel
    std::vector<Message> messages;
    std::vector<Progress> progressShown;
    int stopAfter = -1; ///< progress calls after which the user stops the run; never when negative
    double randomNumber = 0;
    int busyDepth = 0;
    std::chrono::system_clock::time_point clock{std::chrono::hours(24 * 365 * 50)}; ///< 19 December 2019
};

} // namespace iceline::test
