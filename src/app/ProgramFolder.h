#pragma once

#include <filesystem>

namespace iceline {

/// The folder of the running program: the desktop program's league lies there.
std::filesystem::path programFolder();

/// The site as delivered with the program, beside it.
std::filesystem::path siteTemplateFolder();

} // namespace iceline
