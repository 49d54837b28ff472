#include "files/FileError.h"

namespace iceline {

FileError FileError::about(const std::string& file, const std::string& wrong) {
    return FileError(file + ": " + wrong);
}

FileError FileError::missing(const std::string& file) {
    return about(file, "the file is missing");
}

FileError FileError::missingFolder(const std::string& folder) {
    return about(folder, "the folder is missing");
}

FileError FileError::isFolder(const std::string& path) {
    return about(path, "is a folder, not a file");
}

FileError FileError::isFile(const std::string& path) {
    return about(path, "is a file, not a folder");
}

FileError FileError::tooLarge(const std::string& file, std::uintmax_t limit) {
    return about(file, "the file is too large: more than " + std::to_string(limit >> 20) + " MiB");
}

FileError FileError::cannotWrite(const std::string& file, const std::string& reason) {
    return about(file, "cannot be written: " + reason);
}

FileError FileError::cannotRemove(const std::string& path, const std::string& reason) {
    return about(path, "cannot be removed: " + reason);
}

FileError FileError::malformed(const std::string& file, int line, int item, const std::string& field,
                               const std::string& wrong) {
    return about(file + ", line " + std::to_string(line) + ", item " + std::to_string(item) + " (" + field +
                     ")",
                 wrong);
}

FileError FileError::withAdvice(const FileError& error, const std::string& advice) {
    return FileError(error.what() + (". " + advice));
}

} // namespace iceline
