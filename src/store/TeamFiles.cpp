#include "store/TeamFiles.h"

#include "store/LeaguePaths.h"

namespace iceline {

namespace {

template <class Record>
Record readLine(Files& files, const std::string& path, std::size_t fieldCount) {
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    Record record;
    readFields(reader, record, fieldCount);
    return record;
}

} // namespace

TeamRecord readTeamRecord(Files& files, const RecordFolder& folder) {
    return readLine<TeamRecord>(files, folder + "/" + paths::Records, AllFields);
}

TeamRecord readTopOfTeamRecord(Files& files, const RecordFolder& folder, std::size_t fieldCount) {
    return readLine<TeamRecord>(files, folder + "/" + paths::Records, fieldCount);
}

Streak readStreak(Files& files, const RecordFolder& folder) {
    return readLine<Streak>(files, folder + "/" + paths::Streak, AllFields);
}

void writeTeamRecord(Files& files, const RecordFolder& folder, const TeamRecord& record) {
    const std::string path = folder + "/" + paths::Records;
    files.write(path, lineOf(path, record));
}

void writeStreak(Files& files, const RecordFolder& folder, const Streak& streak) {
    const std::string path = folder + "/" + paths::Streak;
    files.write(path, lineOf(path, streak));
}

void appendResult(Files& files, const RecordFolder& folder, const std::string& letter) {
    const std::string path = folder + "/" + paths::Last10Games;
    files.append(path, LineWriter(path).text("result", letter).endLine().content());
}

LastTen readLastTen(Files& files, const RecordFolder& folder, int gameCount) {
    const std::string path = folder + "/" + paths::Last10Games;
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    for (int skipped = 0; skipped < gameCount - 10; ++skipped)
        reader.text("result");
    LastTen lastTen;
    for (int read = 0; read < 10 && !reader.atEnd(); ++read) {
        const std::string letter = reader.text("result");
        lastTen.wins += letter == "W";
        lastTen.losses += letter == "L";
        lastTen.ties += letter == "T";
    }
    return lastTen;
}

} // namespace iceline
