#include "cli/Commands.h"

int main(int argc, char** argv) {
    return iceline::cli::run({argv + 1, argv + argc}, iceline::cli::standardConsole());
}
