#include "cli/CliTest.h"
#include "files/DiskFiles.h"
#include "samples/SampleGames.h"

#include <nlohmann/json.hpp>

namespace iceline::cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A new league on the disk, with four made-up games beside it.
class HistoryCommandsTest : public CliLeagueTest {
protected:
    HistoryCommandsTest() {
        DiskFiles disk(games_.path());
        writeSampleGames(disk, games_.path().generic_string(), 4, 1);
    }

    std::string game(int number) const {
        return (games_.path() / ("game-000" + std::to_string(number) + ".gs0")).generic_string();
    }

private:
    test::TemporaryFolder games_;
};

TEST_F(HistoryCommandsTest, AnEveningIsMended) {
    ASSERT_EQ(iceline({"import", game(1)}).status, 0);
    const std::string once = read("Overall Game Number.txt");
    const std::string copy = league().string() + "/copy.gs0";
    std::filesystem::copy_file(game(1), copy);
    const Outcome twice = iceline({"import", copy});
    EXPECT_EQ(twice.status, 1);
    EXPECT_THAT(twice.out, StartsWith("This game is in the books as game 1: "));
    EXPECT_EQ(read("Overall Game Number.txt"), once);

    write("cut.gs0", std::string(500, 'x'));
    EXPECT_THAT(iceline({"import", league().string() + "/cut.gs0"}).out,
                HasSubstr("holds no finished game: the file is cut."));

    const std::string log = read("History/Log.jsonl");
    const Outcome preview = iceline({"import", game(2), "--dry-run"});
    EXPECT_EQ(preview.status, 0);
    EXPECT_THAT(preview.out, HasSubstr(" -> "));
    EXPECT_EQ(read("History/Log.jsonl"), log);

    ASSERT_EQ(iceline({"coach", "add", "Ann"}).status, 0);
    ASSERT_EQ(iceline({"import", game(2), "--home-coach", "Ann"}).status, 0);
    const Outcome refused = iceline({"undo", "2"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.out, StartsWith("This cannot be done, because game 2, "));
    const Outcome another = iceline({"correct", "3", "--file", game(1)});
    EXPECT_EQ(another.status, 1);
    EXPECT_THAT(another.out, StartsWith("The game of this file is in the books as game 1, "));
    EXPECT_EQ(iceline({"undo", "1"}).status, 0);
    EXPECT_EQ(iceline({"correct", "3", "--home-coach", "none"}).status, 0);
    EXPECT_THAT(iceline({"audit"}).out, StartsWith("0 of "));
    const auto history = nlohmann::json::parse(iceline({"history", "--json"}).out);
    EXPECT_EQ(history.at(0).at("what"), "import");
    EXPECT_EQ(history.at(0).at("undone"), true);
    EXPECT_EQ(history.back().at("what"), "correct");
    EXPECT_THAT(iceline({"game", "3"}).out, HasSubstr("Scoring Summary"));
    EXPECT_EQ(iceline({"redo"}).status, 0);
    EXPECT_EQ(read("Overall Game Number.txt"), "2\r\n");
}

TEST_F(HistoryCommandsTest, TheExportedTablesAgreeWithEachOther) {
    ASSERT_EQ(iceline({"coach", "add", "Stone, Ann"}).status, 0);
    for (const int number : {1, 2, 3})
        ASSERT_EQ(iceline({"import", game(number), "--home-coach", "Stone, Ann"}).status, 0);
    ASSERT_EQ(iceline({"undo"}).status, 0);
    const std::string folder = league().string() + "/data";
    ASSERT_EQ(iceline({"export", folder}).status, 0);

    const auto table = [&](const std::string& name) {
        return nlohmann::json::parse(read("data/" + name + ".json"));
    };
    /// A column's values, row by row.
    const auto column = [](const nlohmann::json& from, const std::string& name) {
        const auto& columns = from.at("columns");
        const auto index =
            static_cast<std::size_t>(std::find(columns.begin(), columns.end(), name) - columns.begin());
        std::vector<nlohmann::json> values;
        for (const auto& row : from.at("rows"))
            values.push_back(row.at(index));
        return values;
    };
    const auto sum = [&](const std::string& name, const std::string& of) {
        int total = 0;
        for (const auto& value : column(table(name), of))
            total += value.get<int>();
        return total;
    };
    EXPECT_THAT(column(table("games"), "number"), testing::ElementsAre(1, 2)) << "the third is undone";
    const int goals = sum("games", "home goals") + sum("games", "away goals");
    EXPECT_EQ(table("goals").at("rows").size(), static_cast<std::size_t>(goals));
    EXPECT_EQ(sum("standings", "GF"), goals);
    EXPECT_EQ(sum("skaters", "G"), goals);
    EXPECT_EQ(sum("penalties", "minutes"),
              sum("games", "home penalty minutes") + sum("games", "away penalty minutes"));
    EXPECT_THAT(column(table("coaches"), "coach"), testing::ElementsAre("Stone,_Ann"));
    EXPECT_THAT(read("data/coaches.csv"), HasSubstr("\r\n\"Stone,_Ann\",1,1,0,2,"));

    ASSERT_EQ(iceline({"publish"}).status, 0);
    const auto published = nlohmann::json::parse(read("IcelineWebPages/data/games.json"));
    EXPECT_EQ(column(published, "date"), column(table("games"), "time"));

    write("data/games.csv", "mine");
    write("History/Log.jsonl", "damaged");
    EXPECT_EQ(iceline({"export", folder}).status, 1);
    EXPECT_EQ(read("data/games.csv"), "mine");
}

} // namespace
} // namespace iceline::cli
