#include "site/SiteTemplate.h"

#include "files/JournalFormat.h"
#include "site/SiteSettings.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <charconv>
#include <fmt/core.h>
#include <map>
#include <optional>
#include <set>
#include <string_view>

namespace iceline {

namespace {

/// Keeps an empty folder in the source; no part of the site.
constexpr std::string_view FolderKeeper = ".gitkeep";

/// The list of games, to which each import adds a row: the template gives it its beginning alone.
constexpr std::string_view GameList = "BoxScores.htm";

/// In the template: a line for each version that leagues of before may have. In the site: a line for each
/// file.
const std::string EarlierVersions = ".earlier-versions";
const std::string DeliveredVersions = paths::page(".delivered-versions");

using Version = std::pair<std::string, std::uint64_t>; ///< path within the site, checksum

/// The lines of such a file: a checksum of 16 hexadecimal digits, two blanks, a path. Others are passed over.
std::vector<Version> readVersions(Files& files, const std::string& path) {
    constexpr std::size_t Digits = 16;
    std::vector<Version> versions;
    if (!files.isFile(path))
        return versions;
    const std::string text = files.read(path);
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string_view line = std::string_view(text).substr(begin, end - begin);
        std::uint64_t sum = 0;
        if (line.size() > Digits + 2 &&
            std::from_chars(line.data(), line.data() + Digits, sum, 16).ec == std::errc())
            versions.emplace_back(line.substr(Digits + 2), sum);
        begin = end + 1;
    }
    return versions;
}

std::string textOf(const std::map<std::string, std::uint64_t>& versions) {
    std::string text;
    for (const auto& [path, sum] : versions)
        text += fmt::format("{:016x}  {}\n", sum, path);
    return text;
}

class SiteUpdate {
public:
    SiteUpdate(Files& siteTemplate, Files& league, RemovedFiles removed)
        : template_(siteTemplate), league_(league), removed_(removed),
          makesFolders_(removed == RemovedFiles::ComeBack || !league.isFolder(paths::WebRoot)) {}

    std::vector<std::string> run() {
        if (!template_.isFolder(""))
            return {};
        for (const auto& [path, sum] : readVersions(league_, DeliveredVersions))
            delivered_[path] = sum;
        settings_ = readSiteSettings(league_);
        const auto before = delivered_;
        updateFolder("");
        if (delivered_ != before)
            league_.write(DeliveredVersions, textOf(delivered_), Durability::Unsynced);
        return std::move(left_);
    }

private:
    void updateFolder(const std::string& folder) {
        const std::string prefix = folder.empty() ? "" : folder + "/";
        if (makesFolders_)
            league_.makeFolder(folder.empty() ? paths::WebRoot : paths::page(folder));
        for (const std::string& name : template_.filesIn(folder))
            if (name != FolderKeeper && name != EarlierVersions)
                updateFile(prefix + name);
        for (const std::string& name : template_.foldersIn(folder))
            updateFolder(prefix + name);
    }

    void updateFile(const std::string& path) {
        const std::string content = withPreview(settings_, path, template_.read(path));
        const std::uint64_t sum = checksum(content);
        const auto known = delivered_.find(path);
        const bool wasDelivered = known != delivered_.end();
        if (!league_.isFile(paths::page(path))) {
            if (!wasDelivered || removed_ == RemovedFiles::ComeBack)
                deliver(path, content, sum);
        } else if (path != GameList && (!wasDelivered || known->second != sum)) {
            const std::uint64_t present = checksum(league_.read(paths::page(path)));
            if (present == sum)
                delivered_[path] = sum;
            else if (wasDelivered ? present == known->second : isEarlier(path, present))
                deliver(path, content, sum);
            else
                left_.push_back(path);
        }
    }

    void deliver(const std::string& path, const std::string& content, std::uint64_t sum) {
        const std::string target = paths::page(path);
        league_.makeFolder(folderOf(target));
        league_.write(target, content, Durability::Unsynced);
        delivered_[path] = sum;
    }

    bool isEarlier(const std::string& path, std::uint64_t sum) {
        if (!earlier_) {
            const auto versions = readVersions(template_, EarlierVersions);
            earlier_.emplace(versions.begin(), versions.end());
        }
        return earlier_->contains({path, sum});
    }

    Files& template_;
    Files& league_;
    SiteSettings settings_;
    RemovedFiles removed_;
    bool makesFolders_;                              ///< those that hold no file, too
    std::map<std::string, std::uint64_t> delivered_; ///< by path within the site
    std::optional<std::set<Version>> earlier_;
    std::vector<std::string> left_;
};

} // namespace

std::vector<std::string> bringSiteUpToDate(Files& siteTemplate, Files& league, RemovedFiles removed) {
    return SiteUpdate(siteTemplate, league, removed).run();
}

} // namespace iceline
