#include "support/TemporaryFolder.h"

#include <random>
#include <string>
#include <system_error>

namespace iceline::test {

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do
        path_ = std::filesystem::temp_directory_path() / ("iceline-test-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace iceline::test
