#pragma once

#include "cli/Console.h"
#include "shell/Platform.h"

#include <random>

namespace iceline::cli {

/// The platform of a terminal. Messages are printed as they are, a message a line. A question of Yes or No
/// counts as answered with Yes, since the command was the answer; only one that warns is answered with No.
class ConsolePlatform : public Platform {
public:
    explicit ConsolePlatform(Console& console);

    Answer ask(const Message& message) override;
    std::optional<std::string> chooseFile(const std::string& title,
                                          const std::vector<FileFilter>& filters) override;
    std::optional<std::string> chooseFolder(const std::string& title) override;
    void setBusy(bool) override {}
    double random() override;
    bool showProgress(const Progress& progress) override;
    void endProgress() override;

    /// Who answers a message that has the buttons OK and Cancel.
    enum class Respondent {
        User, ///< whoever sits at the terminal; Cancel when nobody does
        AlwaysOk,
        AlwaysCancel
    };
    Respondent respondent = Respondent::User;

    /// How often a message with OK and Cancel was asked: within a folder run, the refused games.
    int okCancelAsked = 0;

    /// Messages that ask nothing are not printed.
    bool isQuiet = false;

    /// What the next file or folder dialog gives, once.
    std::optional<std::string> choice;

private:
    Answer askUser();

    Console& console_;
    std::mt19937_64 generator_;
};

} // namespace iceline::cli
