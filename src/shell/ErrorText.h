#pragma once

#include <exception>
#include <string>

namespace iceline {

/// What went wrong, as one line for the user: the message of a FileError as it is, others in plain words.
std::string errorText(const std::exception& error);

} // namespace iceline
