#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Names of files and folders, and with them those of coaches and pages.
namespace iceline {

/// True when a file system may take two names for the same: they differ at most in case and in how accented
/// letters are composed. It is told by Unicode's case folding and normalisation, and so alike everywhere.
bool sameName(std::string_view a, std::string_view b);

/// The order in which files and folders are listed and coaches compared: without regard to what sameName()
/// does not regard, then by bytes.
bool nameBefore(std::string_view a, std::string_view b);

/// True for a character that a file system refuses in a name: / \ : * ? " < > | and control characters.
bool isForbiddenInFileNames(char c);

/// The bytes that the name of a file may have: a temporary file's ending more still fits the 255 of a disk.
inline constexpr std::size_t LongestFileName = 250;

/// What keeps a file or folder of that name from being on every system, for a sentence whose subject is the
/// name: "cannot end in a point". None when it can be.
std::optional<std::string> namingProblem(std::string_view name);

} // namespace iceline
