// Included at the start of every file of a mutated tree. The environment names the mutant that is on, and a
// file with a byte a mutant in which those that a run reaches are noted.
#pragma once

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mutation {

inline const int active = std::getenv("MUTANT") ? std::atoi(std::getenv("MUTANT")) : -1;

inline char* mapReached() {
    const char* const path = std::getenv("MUTANTS_REACHED");
    const int file = path ? open(path, O_RDWR) : -1;
    struct stat status {};
    if (file < 0 || fstat(file, &status) != 0)
        return nullptr;
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    close(file);
    return bytes == MAP_FAILED ? nullptr : static_cast<char*>(bytes);
}

inline char* const reached = mapReached();

constexpr bool on(int mutant) {
    if (__builtin_is_constant_evaluated())
        return false;
    if (reached)
        reached[mutant] = 1;
    return mutant == active;
}

} // namespace mutation
