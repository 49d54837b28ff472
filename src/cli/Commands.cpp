#include "cli/Commands.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace iceline::cli {

int run(int argc, char** argv) {
    CLI::App program("The books of a hobby hockey league", "iceline");
    program.set_version_flag("--version", ICELINE_VERSION);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}

} // namespace iceline::cli
