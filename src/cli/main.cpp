#include "app/ProgramFolder.h"
#include "cli/Commands.h"
#include "shell/StopSignals.h"

int main(int argc, char** argv) {
    iceline::ignoreSignalsOfWrites();
    return iceline::cli::run(iceline::programArguments(argc, argv), iceline::cli::standardConsole());
}
