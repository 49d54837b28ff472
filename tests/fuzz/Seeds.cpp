#include "Readers.h"

#include <filesystem>
#include <fstream>
#include <iostream>

/// fuzz_seeds FOLDER: writes what the fuzzers start from, a folder for each.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    for (const auto& [name, read, seeds] : iceline::test::allReaders()) {
        const std::filesystem::path folder = std::filesystem::path(argv[1]) / name;
        std::filesystem::create_directories(folder);
        int number = 0;
        for (const std::string& seed : seeds()) {
            read(seed);
            std::ofstream file(folder / ("seed-" + std::to_string(++number)), std::ios::binary);
            if (!(file << seed).flush()) {
                std::cerr << folder.string() << ": a seed cannot be written\n";
                return 1;
            }
        }
    }
    return 0;
}
