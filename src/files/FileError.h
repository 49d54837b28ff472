#pragma once

#include <stdexcept>
#include <string>

namespace iceline {

/// The one error that readers and writers of files throw: a file that is missing, cut, malformed, cannot be
/// read or cannot be written. what() is one line for the user that names the file, the place and what is
/// wrong. It is caught at the edge of an operation (a click, a command), nowhere between.
class FileError : public std::runtime_error {
public:
    /// A message that names the file already.
    explicit FileError(const std::string& message) : std::runtime_error(message) {}

    /// "<file>: <what is wrong>".
    FileError(const std::string& file, const std::string& wrong) : std::runtime_error(file + ": " + wrong) {}

    /// "<file>, line <line>, item <item> (<field>): <what is wrong>"; line and item count from 1.
    FileError(const std::string& file, int line, int item, const std::string& field, const std::string& wrong)
        : std::runtime_error(file + ", line " + std::to_string(line) + ", item " + std::to_string(item) +
                             " (" + field + "): " + wrong) {}
};

} // namespace iceline
