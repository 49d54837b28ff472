#include "app/ProgramFolder.h"

#include "files/NativePath.h"

#ifdef _WIN32
#include <memory>
#include <windows.h>
#endif

namespace iceline {

namespace fs = std::filesystem;

namespace {

fs::path programFile() {
#ifdef _WIN32
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size())
            return path.substr(0, length);
        path.resize(2 * path.size());
    }
#else
    return fs::read_symlink("/proc/self/exe");
#endif
}

/// What lies beside the program, or where a package of the system puts it.
fs::path delivered(const char* beside, const char* ofSystem) {
    const fs::path own = programFolder() / beside;
    const fs::path shared = programFolder().parent_path() / ofSystem;
    return fs::exists(own) || !fs::exists(shared) ? own : shared;
}

} // namespace

fs::path programFolder() {
    return programFile().parent_path();
}

fs::path siteTemplateFolder() {
    return delivered("site-template", "share/iceline-scorebook/site-template");
}

fs::path licencesFile() {
    return delivered("licences.txt", "share/doc/iceline-scorebook/copyright");
}

#ifdef _WIN32
// The arguments of `main` have lost every letter that the system's own character set lacks.
std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree);
    std::vector<std::string> arguments;
    for (int word = 1; word < count; ++word)
        arguments.push_back(fromNative(words.get()[word]));
    return arguments;
}
#else
std::vector<std::string> programArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}
#endif

} // namespace iceline
