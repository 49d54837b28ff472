#include "site/ReadCache.h"

#include "store/LeaguePaths.h"

namespace iceline {

namespace {

bool isData(const std::string& path) {
    return isInLeague(path) && !path.starts_with(paths::WebRoot + "/");
}

} // namespace

std::string ReadCache::read(const std::string& path) {
    if (!isData(path))
        return source_.read(path);
    const auto known = contents_.find(path);
    return known != contents_.end() ? known->second
                                    : contents_.emplace(path, source_.read(path)).first->second;
}

std::string ReadCache::readFirst(const std::string& path, std::size_t limit) {
    return isData(path) ? read(path).substr(0, limit) : source_.readFirst(path, limit);
}

void ReadCache::write(const std::string& path, std::string_view content, Durability durability) {
    contents_.erase(path);
    source_.write(path, content, durability);
}

void ReadCache::extend(const std::string& path, std::uintmax_t length, std::string_view content,
                       Durability durability) {
    contents_.erase(path);
    source_.extend(path, length, content, durability);
}

void ReadCache::remove(const std::string& path) {
    contents_.erase(path);
    source_.remove(path);
}

} // namespace iceline
