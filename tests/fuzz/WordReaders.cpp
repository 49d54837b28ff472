#include "Readers.h"
#include "cli/Command.h"
#include "cli/Script.h"
#include "coaches/Coaches.h"
#include "files/FileError.h"
#include "files/Journal.h"
#include "files/JournalFormat.h"
#include "store/LeaguePaths.h"
#include "support/MemoryFiles.h"

#include <algorithm>
#include <sstream>

namespace iceline::test {

namespace {

MemoryFiles smallLeague() {
    MemoryFiles files;
    files.folders = {"BOS", paths::Coaches};
    files.files = {{"BOS/Records.txt", "0,0"}, {"List.htm", "head\n"}};
    return files;
}

void finishJournal(const std::string& journal) {
    MemoryFiles files = smallLeague();
    files.files[Journal::FileName] = journal;
    const auto noted = wholeCommits(journal);
    const bool inLeague = std::ranges::all_of(noted, [](const auto& n) { return canBeNoted(n.change.path); });
    require(inLeague, "a journal names files of the league alone");
    const auto before = files.files;
    try {
        const Recovery recovery = Journal(files).recover();
        require(!files.isFile(Journal::FileName), "a finished journal is removed");
        require(recovery == (noted.empty() ? Recovery::Dropped : Recovery::Finished),
                "recovery tells the truth");
    } catch (const FileError&) {
        require(files.isFile(Journal::FileName), "a journal that is not finished stays");
        files = smallLeague();
        files.files[Journal::FileName] = journal;
        Journal(files).setAside("Aside.journal");
        require(files.files.size() == before.size() && Journal(files).recover() == Recovery::Nothing,
                "a journal can be set aside");
    }
}

/// The bytes as a journal, and as the body of a commit whose checksum fits.
void readJournal(const std::string& bytes) {
    finishJournal(bytes);
    const auto number = [](std::uint64_t value) {
        std::string text;
        for (int byte = 0; byte < 8; ++byte, value >>= 8)
            text += static_cast<char>(value);
        return text;
    };
    finishJournal(std::string(JournalHeading) + number(checksum(bytes)) + number(bytes.size()) + bytes);
}

std::vector<std::string> journalSeeds() {
    using Kind = Change::Kind;
    const std::string entry = journalEntry({{Kind::MakeFolder, "Coaches/Ann", 0, ""},
                                            {Kind::Write, "BOS/Records.txt", 0, "1,0"},
                                            {Kind::Extend, "List.htm", 5, "game\n"},
                                            {Kind::Remove, "BOS/Old.txt", 0, ""},
                                            {Kind::RemoveFolder, "Coaches/Lee", 0, ""}},
                                           {{}, {true, 3, checksum("0,0")}, {true, 5, 0}, {}, {}});
    return {std::string(JournalHeading) + entry, std::string(JournalHeading) + entry + entry,
            entry.substr(16)};
}

void readScriptLine(const std::string& line) {
    const auto words = cli::wordsOf(line);
    if (!words)
        return;
    std::istringstream in;
    std::ostringstream out, err;
    cli::Console console{in, out, err};
    CLI::App program("", "");
    cli::Call call;
    cli::addScriptableCommands(program, call);
    try {
        cli::parseWords(program, *words, console);
        require(call.action || !out.str().empty(), "a line is a command or gets an answer");
    } catch (const cli::UsageError& error) {
        require(*error.what() != '\0', "what is misused is said");
    }
}

std::vector<std::string> scriptSeeds() {
    return {"import game.gs0 --home-coach Ann --away-coach \"Bo Lee\" # the first",
            "import-folder Games --exhibition --stop-on-refusal",
            "coach add Ann",
            "coach rename Ann \"Ann Lee\"",
            "season-length 24",
            "clear ALL",
            "open Standings",
            "sample-games Games --games 3 --seed 7",
            "help coach rename",
            "go-to-playoffs",
            "publish"};
}

void readCoachName(const std::string& bytes) {
    const std::string name = storedCoachName(bytes);
    MemoryFiles files = smallLeague();
    if (name.empty() || coachNameProblem(name))
        return;
    const auto before = files.files;
    createCoach(files, name);
    require(canBeNoted(paths::coachFolder(name)), "a coach's folder is in the league");
    require(findCoach(files, name) == name, "a coach is found by his name");
    renameCoach(files, name, "Somebody else");
    deleteCoach(files, "Somebody else");
    require(files.files == before && coachNames(files).empty(), "a coach who is deleted leaves nothing");
}

std::vector<std::string> coachNameSeeds() {
    return {"Ann", "Bo Lee", "\xC3\x85ke", "CON", "com1.txt", "..", "a/b", "COM\xC2\xB9", "J\xC3\xB6rg <b>"};
}

} // namespace

Reader journalReader() {
    return {"journal", readJournal, journalSeeds};
}

Reader scriptLineReader() {
    return {"script_line", readScriptLine, scriptSeeds};
}

Reader coachNameReader() {
    return {"coach_name", readCoachName, coachNameSeeds};
}

} // namespace iceline::test
