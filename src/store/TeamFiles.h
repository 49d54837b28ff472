#pragma once

#include "files/Files.h"
#include "store/TeamRecord.h"

#include <string>

namespace iceline {

/// Folder that holds the three record files of a team's part of the year, or of a coach, without a slash
/// after it: all three have the same form everywhere.
using RecordFolder = std::string;

TeamRecord readTeamRecord(Files& files, const RecordFolder& folder);

/// The first fields of `Records.txt`, by default up to GP; the others keep their initial values.
TeamRecord readTopOfTeamRecord(Files& files, const RecordFolder& folder, std::size_t fieldCount = 6);

Streak readStreak(Files& files, const RecordFolder& folder);

void writeTeamRecord(Files& files, const RecordFolder& folder, const TeamRecord& record);
void writeStreak(Files& files, const RecordFolder& folder, const Streak& streak);

/// Adds the letter of a game ("W", "L" or "T") to `Last 10 Games.txt`.
void appendResult(Files& files, const RecordFolder& folder, const std::string& letter);

/// Wins, losses and ties among the latest ten results.
struct LastTen {
    int wins = 0;
    int losses = 0;
    int ties = 0;
};

/// Counts the lines of `Last 10 Games.txt` that follow the first `gameCount` - 10, at most ten of them.
LastTen readLastTen(Files& files, const RecordFolder& folder, int gameCount);

} // namespace iceline
