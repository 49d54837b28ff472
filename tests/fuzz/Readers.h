#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace iceline::test {

/// A reader of bytes that come from outside: a file, or words of the user.
struct Reader {
    std::string name; ///< that of its fuzzer, <name>_fuzz

    /// Reads any bytes, in a millisecond or two. Ends the program when a promise about them is broken; to
    /// refuse them in good order breaks none.
    std::function<void(const std::string&)> read;

    /// Bytes to start from, as the program itself writes them.
    std::function<std::vector<std::string>()> seeds;
};

const std::vector<Reader>& allReaders();

/// Tells the fuzzer that the program has broken a promise.
void require(bool holds, std::string_view promise);

/// Rows of the table.
Reader saveStateReader();
Reader booksReader();
Reader bracketReader();
Reader journalReader();
Reader scriptLineReader();
Reader coachNameReader();
Reader historyReader();

} // namespace iceline::test
