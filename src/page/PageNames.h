#pragma once

#include <string>
#include <string_view>

/// Names of players, coaches and games where they become markup, links and names of files.
namespace iceline {

/// A name as markup shows it: "<", ">" and "&" are written as entities, so that no name is markup or code.
std::string shown(std::string_view name);

/// The name of a file as a link in double quotes holds it: "%", "#" and "?", which would mean something else
/// there, and "<" and ">" are percent-encoded, "&" is an entity.
std::string linked(std::string_view fileName);

/// The name of a player's page without its ending, for files and links: every character that a
/// file system refuses becomes "_".
std::string playerFileName(std::string_view name);

/// A path within the site as part of a link: bytes other than letters, digits and -._~/ as percent signs and
/// two digits.
std::string linkText(std::string_view path);

} // namespace iceline
