#pragma once

#include "cli/Commands.h"
#include "support/TemporaryFolder.h"
#include "support/TestLeague.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace iceline::cli {

/// What a call of the companion program gave.
struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Calls of the companion program on a league in a folder of the disk.
class CliTest : public testing::Test {
protected:
    /// `iceline WORDS...`, with `input` on standard input, which is no terminal.
    static Outcome call(const std::vector<std::string>& words, const std::string& input = "") {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = run(words, {in, out, err});
        return {status, out.str(), err.str()};
    }

    /// `iceline --yes --league FOLDER WORDS...`
    Outcome iceline(std::vector<std::string> words, const std::string& input = "") const {
        words.insert(words.begin(), {"--yes", "--league", league().string()});
        return call(words, input);
    }

    /// A script of these lines on standard input.
    Outcome script(const std::string& lines) const { return iceline({"script", "-"}, lines); }

    const std::filesystem::path& league() const { return folder_.path(); }

    std::string read(const std::filesystem::path& file) const {
        std::ifstream in(league() / file, std::ios::binary);
        EXPECT_TRUE(in) << file;
        return {std::istreambuf_iterator<char>(in), {}};
    }

    void write(const std::filesystem::path& file, const std::string& content) const {
        std::ofstream(league() / file, std::ios::binary) << content;
    }

private:
    test::TemporaryFolder folder_;
};

/// A new league on the disk.
class CliLeagueTest : public CliTest {
protected:
    CliLeagueTest() { test::writeToDisk(test::TestLeague().files, league()); }
};

} // namespace iceline::cli
