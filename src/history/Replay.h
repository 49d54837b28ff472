#pragma once

#include "log/HistoryLog.h"
#include "shell/Application.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace iceline {

/// An operation of the history that has no place in the books as they would be before it.
class Misfit : public std::runtime_error {
public:
    /// `reason` is a sentence without its end.
    Misfit(const Step& step, const std::string& reason);
};

/// "game 12, Boston Bruins 3, Montreal Canadiens 2", "coach add Smith": an operation as users know it.
std::string titleOf(const Step& step);

/// The league in memory in which the operations of a history are carried out, one after the other, by the
/// code that carried them out in the first place. Nothing of it reaches the league's files.
class Replay {
public:
    /// The league as it was before the first line of its log.
    Replay(const FileContents& baseline, WindowCatalogue catalogue);
    ~Replay();

    /// The same league once more, to go on another way.
    std::unique_ptr<Replay> fork() const;

    /// Carries out what the step comes to; one that is undone comes to nothing. Throws Misfit.
    void carryOut(const Step& step);

    /// The books and the box score pages; rosters are left out.
    FileContents books() const;

    /// One file of the league; none when there is no such file.
    std::optional<std::string> content(const std::string& path) const;

    /// What the program holds of the league.
    const ApplicationState& state() const;

private:
    struct World;
    explicit Replay(std::unique_ptr<World> world);

    std::unique_ptr<World> world_;
};

} // namespace iceline
