#include "app/Version.h"

#include <boost/version.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <utf8proc.h>

namespace iceline {

namespace {

constexpr std::string_view Commit = ICELINE_COMMIT;

/// A version out of the one number that a library gives, in which the patch takes two digits and the minor
/// version the digits between that and `major`.
std::string dotted(int number, int major) {
    constexpr int Minor = 100;
    return fmt::format("{}.{}.{}", number / major, number % major / Minor, number % Minor);
}

} // namespace

std::string versionText(std::string_view ownLibrary) {
    return fmt::format("{}{}{}\nwith Boost {}, {{fmt}} {}, JSON for Modern C++ {}.{}.{}, utf8proc {}, {}",
                       ICELINE_VERSION, Commit.empty() ? "" : ", commit ", Commit,
                       dotted(BOOST_VERSION, 100000), dotted(FMT_VERSION, 10000), NLOHMANN_JSON_VERSION_MAJOR,
                       NLOHMANN_JSON_VERSION_MINOR, NLOHMANN_JSON_VERSION_PATCH, utf8proc_version(),
                       ownLibrary);
}

} // namespace iceline
