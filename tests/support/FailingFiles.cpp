#include "support/FailingFiles.h"

#include "files/FileError.h"

namespace iceline::test {

namespace {

[[noreturn]] void fail(const std::string& path) {
    throw FileError::about(path, "the disk fails for the test");
}

} // namespace

void FailingFiles::failAt(int n, Failure failure) {
    failAt_ = n;
    failure_ = failure;
    uses_ = 0;
}

bool FailingFiles::failsNow() {
    ++uses_;
    return uses_ == failAt_ || (failure_ == Failure::Crash && hasFailed());
}

Files& FailingFiles::use(const std::string& path) {
    if (failsNow())
        fail(path);
    return base_;
}

std::string FailingFiles::read(const std::string& path) {
    return use(path).read(path);
}

std::string FailingFiles::readFirst(const std::string& path, std::size_t limit) {
    return use(path).readFirst(path, limit);
}

void FailingFiles::write(const std::string& path, std::string_view content, Durability durability) {
    use(path).write(path, content, durability);
}

void FailingFiles::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                          Durability durability) {
    if (failsNow()) {
        if (failure_ == Failure::Crash && uses_ == failAt_)
            base_.extend(path, length, content.substr(0, content.size() / 2), durability);
        fail(path);
    }
    base_.extend(path, length, content, durability);
}

void FailingFiles::remove(const std::string& path) {
    use(path).remove(path);
}

void FailingFiles::rename(const std::string& path, const std::string& name) {
    use(path).rename(path, name);
}

void FailingFiles::makeFolder(const std::string& path) {
    use(path).makeFolder(path);
}

void FailingFiles::removeFolder(const std::string& path) {
    use(path).removeFolder(path);
}

bool FailingFiles::isFile(const std::string& path) {
    return use(path).isFile(path);
}

bool FailingFiles::isFolder(const std::string& path) {
    return use(path).isFolder(path);
}

bool FailingFiles::leadsOut(const std::string& path) {
    return use(path).leadsOut(path);
}

std::uintmax_t FailingFiles::size(const std::string& path) {
    return use(path).size(path);
}

std::vector<std::string> FailingFiles::filesIn(const std::string& folder) {
    return use(folder).filesIn(folder);
}

std::vector<std::string> FailingFiles::foldersIn(const std::string& folder) {
    return use(folder).foldersIn(folder);
}

void FailingFiles::tryOut(const std::vector<Change>& changes) {
    use("the league folder").tryOut(changes);
}

void FailingFiles::sync() {
    use("the league folder").sync();
}

} // namespace iceline::test
