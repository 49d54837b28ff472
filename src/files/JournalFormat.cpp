#include "files/JournalFormat.h"

#include "files/Files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

namespace iceline {

namespace {

constexpr std::size_t NumberSize = 8;

/// What all first lines of journals begin with, before their version.
constexpr std::string_view HeadingStart = "Iceline Scorebook journal ";

constexpr int NewestVersion = 3;

/// First lines of earlier versions: 1 does not say what the files were before, 2 renames no folders.
constexpr std::string_view FirstHeading =
    "Iceline Scorebook journal 1: changes that were begun, to be finished at the next start.\n";
constexpr std::string_view SecondHeading =
    "Iceline Scorebook journal 2: changes that were begun, to be finished at the next start.\n";

enum class Version { First, Later };

void addNumber(std::string& bytes, std::uint64_t number) {
    for (std::size_t i = 0; i < NumberSize; ++i)
        bytes += static_cast<char>(number >> (8 * i));
}

void addText(std::string& bytes, std::string_view text) {
    addNumber(bytes, text.size());
    bytes += text;
}

/// Takes what addNumber() and addText() added; nothing when the bytes do not reach, and nothing after that.
class Bytes {
public:
    explicit Bytes(std::string_view rest) : rest_(rest) {}

    bool atEnd() const { return rest_.empty(); }

    std::optional<std::string_view> take(std::uint64_t size) {
        if (size > rest_.size()) {
            rest_ = {};
            return std::nullopt;
        }
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    std::optional<std::uint64_t> takeNumber() {
        const auto bytes = take(NumberSize);
        if (!bytes)
            return std::nullopt;
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < NumberSize; ++i)
            number |= std::uint64_t{static_cast<unsigned char>((*bytes)[i])} << (8 * i);
        return number;
    }

    std::optional<std::string_view> takeText() {
        const auto size = takeNumber();
        return size ? take(*size) : std::nullopt;
    }

private:
    std::string_view rest_;
};

std::optional<FileMark> takeMark(Bytes& bytes) {
    const auto exists = bytes.takeNumber();
    const auto size = bytes.takeNumber();
    const auto sum = bytes.takeNumber();
    return sum ? std::optional(FileMark{*exists != 0, *size, *sum}) : std::nullopt;
}

std::optional<NotedChange> takeChange(Bytes& bytes, Version version) {
    const auto kind = bytes.takeNumber();
    const auto path = bytes.takeText();
    const auto length = bytes.takeNumber();
    const auto content = bytes.takeText();
    const auto before = version == Version::Later ? takeMark(bytes) : std::nullopt;
    if (!content || *kind > static_cast<std::uint64_t>(Change::Kind::RenameFolder))
        return std::nullopt;
    if (version == Version::Later && !before)
        return std::nullopt;
    NotedChange noted{{static_cast<Change::Kind>(*kind), std::string(*path), *length, std::string(*content)},
                      before};
    const bool inLeague =
        std::ranges::all_of(pathsOf(noted.change), [](const auto* p) { return canBeNoted(*p); });
    return inLeague ? std::optional(std::move(noted)) : std::nullopt;
}

std::optional<std::vector<NotedChange>> takeCommit(Bytes& journal, Version version) {
    const auto sum = journal.takeNumber();
    const auto body = journal.takeText();
    if (!body || checksum(*body) != *sum)
        return std::nullopt;
    std::vector<NotedChange> changes;
    for (Bytes bytes(*body); !bytes.atEnd();) {
        auto change = takeChange(bytes, version);
        if (!change)
            return std::nullopt;
        changes.push_back(std::move(*change));
    }
    return changes;
}

} // namespace

bool canBeNoted(std::string_view path) {
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name.empty() || name == ".")
            return false;
        begin = end + 1;
    }
    return isInLeague(std::string(path));
}

std::vector<const std::string*> pathsOf(const Change& change) {
    if (change.kind == Change::Kind::RenameFolder)
        return {&change.path, &change.content};
    return {&change.path};
}

std::uint64_t checksum(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return hash;
}

std::string journalEntry(const std::vector<Change>& changes, const std::vector<FileMark>& before) {
    std::string body;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        addNumber(body, static_cast<std::uint64_t>(changes[i].kind));
        addText(body, changes[i].path);
        addNumber(body, changes[i].length);
        addText(body, changes[i].content);
        addNumber(body, before[i].exists ? 1 : 0);
        addNumber(body, before[i].size);
        addNumber(body, before[i].checksum);
    }
    std::string entry;
    addNumber(entry, checksum(body));
    addText(entry, body);
    return entry;
}

bool isOfLaterVersion(std::string_view journal) {
    if (!journal.starts_with(HeadingStart))
        return false;
    int version = 0;
    const char* end = journal.data() + journal.size();
    const auto read = std::from_chars(journal.data() + HeadingStart.size(), end, version);
    return read.ptr != end && *read.ptr == ':' && version > NewestVersion;
}

std::vector<NotedChange> wholeCommits(std::string_view journal) {
    const auto startsSo = [&](std::string_view heading) { return journal.starts_with(heading); };
    constexpr std::array Headings{FirstHeading, SecondHeading, JournalHeading};
    const auto heading = std::ranges::find_if(Headings, startsSo);
    std::vector<NotedChange> all;
    if (heading == Headings.end())
        return all;
    const Version version = heading == Headings.begin() ? Version::First : Version::Later;
    Bytes rest(journal.substr(heading->size()));
    while (auto changes = takeCommit(rest, version))
        all.insert(all.end(), std::make_move_iterator(changes->begin()),
                   std::make_move_iterator(changes->end()));
    return all;
}

} // namespace iceline
