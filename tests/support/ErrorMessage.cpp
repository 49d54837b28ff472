#include "support/ErrorMessage.h"

#include "files/FileError.h"

namespace iceline::test {

std::string errorMessage(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace iceline::test
