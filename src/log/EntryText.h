#pragma once

#include "log/Entry.h"

#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

namespace iceline {

/// An entry as one JSON object, in the order of its fields, without the checksum of its line.
nlohmann::ordered_json jsonOf(const Entry& entry);

/// The inverse. Throws nlohmann::json::exception, or std::invalid_argument for a value that no such field
/// has.
Entry entryOf(const nlohmann::ordered_json& object);

/// 16 hexadecimal digits that are the same for two sheets of the same figures, and practically never for
/// others.
std::string fingerprintOf(const GameSheet& sheet, int lastScorer);

/// The hash of a text that the log notes, as 16 hexadecimal digits.
std::string checksumText(std::string_view text);

/// Files by path, as one JSON object.
std::string textOfFiles(const std::map<std::string, std::string>& files);

/// The inverse. `file` is the name for errors, which are FileErrors.
std::map<std::string, std::string> filesOfText(const std::string& file, const std::string& text);

} // namespace iceline
