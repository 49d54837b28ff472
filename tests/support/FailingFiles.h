#pragma once

#include "files/Files.h"

#include <string>

namespace iceline::test {

/// Files that fail: the n-th use of the base files throws FileError ("the disk fails for the test").
///
/// Every function of Files counts as one use, the questions isFile(), isFolder() and size() too, since each
/// of them asks the disk. Of what fails nothing is done; but an extend() in a crash leaves the first half of
/// its content after the length, as a power cut would.
class FailingFiles : public Files {
public:
    enum class Failure {
        Once,  ///< the n-th use fails and later ones succeed
        Crash, ///< the n-th use fails and all later ones too
    };

    explicit FailingFiles(Files& base) : base_(base) {}

    /// Lets the `n`-th use from now on fail (1 is the next one) and begins to count again.
    void failAt(int n, Failure failure);

    /// Uses since the beginning or since failAt().
    int uses() const { return uses_; }

    /// True when a use has failed since failAt().
    bool hasFailed() const { return failAt_ != 0 && uses_ >= failAt_; }

    std::string read(const std::string& path) override;
    std::string readFirst(const std::string& path, std::size_t limit) override;
    void write(const std::string& path, std::string_view content, Durability durability) override;
    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override;
    void remove(const std::string& path) override;
    void rename(const std::string& path, const std::string& name) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool isFile(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    bool leadsOut(const std::string& path) override;
    std::uintmax_t size(const std::string& path) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::vector<std::string> foldersIn(const std::string& folder) override;
    void tryOut(const std::vector<Change>& changes) override;
    void sync() override;

private:
    /// Counts a use; true when it must fail.
    bool failsNow();
    Files& use(const std::string& path);

    Files& base_;
    int uses_ = 0;
    int failAt_ = 0; ///< 0: never
    Failure failure_ = Failure::Once;
};

} // namespace iceline::test
