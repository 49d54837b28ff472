#include "watch/FolderWatch.h"

#include "files/NativePath.h"

#include <system_error>

namespace iceline {

FolderWatch::FolderWatch(const std::string& folder) : disk_(toNative(folder)), folder_(folder) {
    for (const auto& [path, look] : looks())
        files_[path] = {look, {}, true};
}

/// A file that goes while the folder is read is left out.
std::map<std::string, FolderWatch::Look> FolderWatch::looks() {
    std::map<std::string, Look> found;
    for (const std::string& name : disk_.filesIn(folder_)) {
        const std::string path = folder_ + "/" + name;
        std::error_code sizeError;
        std::error_code timeError;
        const Look look{std::filesystem::file_size(toNative(path), sizeError),
                        std::filesystem::last_write_time(toNative(path), timeError)};
        if (!sizeError && !timeError)
            found[path] = look;
    }
    return found;
}

std::vector<std::string> FolderWatch::wholeFiles(Time now) {
    std::vector<std::string> whole;
    std::map<std::string, File> files;
    for (const auto& [path, look] : looks()) {
        const auto known = files_.find(path);
        File& file = files[path] =
            known != files_.end() && known->second.look == look ? known->second : File{look, now};
        if (file.told || now - file.since < Stillness)
            continue;
        file.told = true;
        whole.push_back(path);
    }
    files_ = std::move(files);
    return whole;
}

} // namespace iceline
