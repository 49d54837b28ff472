#include "app/ProgramFolder.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace iceline {

namespace fs = std::filesystem;

namespace {

fs::path programFile() {
#ifdef _WIN32
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
#else
    return fs::read_symlink("/proc/self/exe");
#endif
}

} // namespace

fs::path programFolder() {
    return programFile().parent_path();
}

fs::path siteTemplateFolder() {
    return programFolder() / "site-template";
}

} // namespace iceline
