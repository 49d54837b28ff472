#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace iceline {

/// The folder of the running program: the desktop program's league lies there.
std::filesystem::path programFolder();

/// The site as delivered with the program: beside it, or where a package of the system puts it.
std::filesystem::path siteTemplateFolder();

/// The licences of the program and of the libraries in it, as a text.
std::filesystem::path licencesFile();

/// What was typed after the program's name, in UTF-8 on every system, given the arguments of `main`.
std::vector<std::string> programArguments(int argc, char** argv);

} // namespace iceline
