#include "files/JournalFormat.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace iceline {

namespace {

constexpr std::size_t NumberSize = 8;

/// The FNV-1a hash of 64 bits.
std::uint64_t checksum(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return hash;
}

void addNumber(std::string& bytes, std::uint64_t number) {
    for (std::size_t i = 0; i < NumberSize; ++i)
        bytes += static_cast<char>(number >> (8 * i));
}

void addText(std::string& bytes, std::string_view text) {
    addNumber(bytes, text.size());
    bytes += text;
}

/// Takes what addNumber() and addText() added; nothing when the bytes do not reach.
class Bytes {
public:
    explicit Bytes(std::string_view rest) : rest_(rest) {}

    bool atEnd() const { return rest_.empty(); }

    std::optional<std::string_view> take(std::uint64_t size) {
        if (size > rest_.size())
            return std::nullopt;
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

std::optional<Change> takeChange(Bytes& bytes) {
    const auto kind = bytes.takeNumber();
    const auto path = bytes.takeText();
    const auto length = bytes.takeNumber();
    const auto content = bytes.takeText();
    if (!content || *kind > static_cast<std::uint64_t>(Change::Kind::RemoveFolder))
        return std::nullopt;
    Change change{static_cast<Change::Kind>(*kind), std::string(*path), *length, std::string(*content)};
    return isInLeague(change.path) ? std::optional(std::move(change)) : std::nullopt;
}

std::optional<std::vector<Change>> takeCommit(Bytes& journal) {
    const auto sum = journal.takeNumber();
    const auto body = journal.takeText();
    if (!body || checksum(*body) != *sum)
        return std::nullopt;
    std::vector<Change> changes;
    for (Bytes bytes(*body); !bytes.atEnd();) {
        auto change = takeChange(bytes);
        if (!change)
            return std::nullopt;
        changes.push_back(std::move(*change));
    }
    return changes;
}

} // namespace

std::string journalEntry(const std::vector<Change>& changes) {
    std::string body;
    for (const Change& change : changes) {
        addNumber(body, static_cast<std::uint64_t>(change.kind));
        addText(body, change.path);
        addNumber(body, change.length);
        addText(body, change.content);
    }
    std::string entry;
    addNumber(entry, checksum(body));
    addText(entry, body);
    return entry;
}

std::vector<Change> wholeCommits(std::string_view journal) {
    std::vector<Change> all;
    if (!journal.starts_with(JournalHeading))
        return all;
    Bytes rest(journal.substr(JournalHeading.size()));
    while (auto changes = takeCommit(rest))
        all.insert(all.end(), std::make_move_iterator(changes->begin()),
                   std::make_move_iterator(changes->end()));
    return all;
}

} // namespace iceline
