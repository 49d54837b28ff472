#pragma once

#include <functional>
#include <string>

namespace iceline::test {

/// The message of the FileError that the action throws, "no error" when it throws none.
std::string errorMessage(const std::function<void()>& action);

} // namespace iceline::test
