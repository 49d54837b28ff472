#include "store/TeamFiles.h"
#include "support/MemoryFiles.h"

#include <benchmark/benchmark.h>

namespace iceline {
namespace {

/// A line as it stands in mid-season, when most of its figures have decimals.
TeamRecord midSeasonRecord() {
    TeamRecord record;
    record.Wins = 21;
    record.GP = 41;
    record.WinPercent = 0.512;
    record.PowerRanking = 21.37;
    record.PPTimePGText = RawItem::text("6:05");
    record.AttZoneSecPG = 312.4390243902439;
    record.AttZonePG = "5:12";
    record.SOGPct = 11.8;
    return record;
}

void readRecords(benchmark::State& state) {
    test::MemoryFiles files;
    files.makeFolder("Boston Bruins");
    writeTeamRecord(files, "Boston Bruins", midSeasonRecord());
    for (auto _ : state)
        benchmark::DoNotOptimize(readTeamRecord(files, "Boston Bruins"));
}
BENCHMARK(readRecords);

void writeRecords(benchmark::State& state) {
    const TeamRecord record = midSeasonRecord();
    for (auto _ : state)
        benchmark::DoNotOptimize(lineOf("Records.txt", record));
}
BENCHMARK(writeRecords);

} // namespace
} // namespace iceline
