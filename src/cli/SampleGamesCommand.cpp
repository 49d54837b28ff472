#include "cli/Command.h"
#include "samples/SampleGames.h"

namespace iceline::cli {

namespace {

struct SampleGames {
    std::string directory;
    int games = DefaultSampleGames;
    std::uint64_t seed = 1;
};

Status sampleGames(Session&, const SampleGames& wanted) {
    const std::string directory = absolutePath(wanted.directory);
    DiskFiles disk(directory);
    writeSampleGames(disk, directory, wanted.games, wanted.seed);
    return Status::Done;
}

} // namespace

void addSampleGamesCommand(CLI::App& program, Call& call) {
    const auto [command, wanted] = addCommand<SampleGames>(
        program, call, "sample-games", "Write save states of made-up games to try the program with",
        sampleGames, Works::Alone);
    addArgument(*command, "DIR", wanted->directory, "the folder for them, made when missing");
    command->add_option("--games", wanted->games, "how many games")
        ->type_name("N")
        ->check(wholeNumber<int>(1))
        ->capture_default_str();
    command->add_option("--seed", wanted->seed, "the same seed makes the same games")
        ->type_name("S")
        ->check(wholeNumber<std::uint64_t>(0))
        ->capture_default_str();
}

} // namespace iceline::cli
