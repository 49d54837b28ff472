#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace iceline {

/// The one error that readers and writers of files throw: a file that is missing, cut, malformed, cannot be
/// read or cannot be written. what() is one line for the user that names the file, the place and what is
/// wrong. It is caught at the edge of an operation (a click, a command), nowhere between.
///
/// Each maker takes the file first, as the user knows it: its path in the league folder, or the absolute path
/// that was asked for.
class FileError : public std::runtime_error {
public:
    /// "<file>: <what is wrong>", for what no other maker says.
    static FileError about(const std::string& file, const std::string& wrong);

    static FileError missing(const std::string& file);
    static FileError missingFolder(const std::string& folder);

    /// A folder is where a file should be, and the other way round.
    static FileError isFolder(const std::string& path);
    static FileError isFile(const std::string& path);

    /// The file is larger than `limit` bytes, a whole number of MiB.
    static FileError tooLarge(const std::string& file, std::uintmax_t limit);

    static FileError cannotWrite(const std::string& file, const std::string& reason);
    static FileError cannotRemove(const std::string& path, const std::string& reason);

    /// "<file>, line <line>, item <item> (<field>): <what is wrong>"; line and item count from 1.
    static FileError malformed(const std::string& file, int line, int item, const std::string& field,
                               const std::string& wrong);

    /// The same error with a sentence that says how things go on.
    static FileError withAdvice(const FileError& error, const std::string& advice);

private:
    explicit FileError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace iceline
