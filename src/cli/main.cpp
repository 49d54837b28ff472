#include "cli/Commands.h"
#include "shell/StopSignals.h"

int main(int argc, char** argv) {
    iceline::ignoreSignalsOfWrites();
    return iceline::cli::run({argv + 1, argv + argc}, iceline::cli::standardConsole());
}
