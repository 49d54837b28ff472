#include "cli/Commands.h"

int main(int argc, char** argv) {
    return iceline::cli::run(argc, argv);
}
