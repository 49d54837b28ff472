#include "store/TextFormat.h"

#include "store/Fields.h"
#include "store/PlayerFiles.h"
#include "support/Test.h"

#include <functional>

namespace iceline {
namespace {

using namespace test;

/// The message with which `read` refuses a file of that content.
std::string refusal(std::string_view content, const std::function<void(ItemReader&)>& read) {
    return errorMessage([&] {
        ItemReader reader("Some File.txt", content);
        read(reader);
    });
}

TEST(ItemReader, TakesItemsAcrossLinesWithEitherLineEnd) {
    for (const std::string_view content : {"1,\"a, b\",.5\r\n \t-2 ,Jo \r\n", "1,\"a, b\",.5\n \t-2 ,Jo \n",
                                           "1\r\n\"a, b\"\r.5\r\n-2,Jo \r\n"}) {
        ItemReader reader("f", content);
        EXPECT_EQ(reader.integer16("a"), 1);
        EXPECT_EQ(reader.text("b"), "a, b");
        EXPECT_EQ(reader.number("c"), 0.5);
        EXPECT_FALSE(reader.atEnd());
        EXPECT_EQ(reader.integer32("d"), -2);
        EXPECT_EQ(reader.text("e"), "Jo ") << "a text that is not quoted keeps its blanks";
        EXPECT_TRUE(reader.atEnd());
    }
}

TEST(ItemReader, ABlankItemIsZeroOrAnEmptyText) {
    ItemReader reader("f", ",, ,\"\",\r\n");
    EXPECT_EQ(reader.optionalNumber("a"), std::nullopt);
    EXPECT_EQ(reader.optionalText("b"), std::nullopt);
    EXPECT_EQ(reader.number("c"), 0);
    EXPECT_EQ(reader.optionalText("d"), "");
    EXPECT_EQ(reader.integer16("e"), 0);
    EXPECT_TRUE(reader.atEnd());
}

TEST(ItemReader, AnItemPassedOnKeepsItsQuotes) {
    ItemReader reader("f", "\"1:05\",0,\r\n");
    EXPECT_EQ(reader.raw("a").written, "\"1:05\"");
    EXPECT_EQ(reader.raw("b").written, "0");
    EXPECT_EQ(reader.raw("c").written, "");
}

TEST(ItemReader, RoundsAFractionToAWholeNumberWithTiesToEven) {
    ItemReader reader("f", "0.5,1.5,2.5,-0.5,-1.5,2.51,32767.4\r\n");
    for (const int whole : {0, 2, 2, 0, -2, 3, 32767})
        EXPECT_EQ(reader.integer16("n"), whole);
}

TEST(ItemReader, NamesFileLineItemAndFieldOfWhatDoesNotFit) {
    const auto third = [](auto read) {
        return [read](ItemReader& reader) {
            reader.text("first");
            reader.text("second");
            read(reader);
        };
    };
    const auto integer16 = third([](ItemReader& reader) { reader.integer16("Wins"); });
    const auto integer32 = third([](ItemReader& reader) { reader.integer32("SOG"); });
    const auto number = third([](ItemReader& reader) { reader.number("Diff"); });
    const auto team = third([](ItemReader& reader) { reader.team("Team"); });
    const std::string here = "Some File.txt, line 2, item 1 ";
    EXPECT_EQ(refusal("1,2\r\n32768\r\n", integer16),
              here + "(Wins): a whole number from -32768 to 32767 was expected, not 32768");
    EXPECT_EQ(refusal("1,2\r\n-32769\r\n", integer16),
              here + "(Wins): a whole number from -32768 to 32767 was expected, not -32769");
    EXPECT_EQ(refusal("1,2\n2147483648\n", integer32),
              here + "(SOG): a whole number from -2147483648 to 2147483647 was expected, not 2147483648");
    EXPECT_EQ(refusal("1,2\r\nx1\r\n", number), here + "(Diff): a number was expected, not \"x1\"");
    EXPECT_EQ(refusal("1,2\r\n\"3\"\r\n", number), here + "(Diff): a number was expected, not \"3\"");
    EXPECT_EQ(refusal("1,2\r\n1e3\r\n", number), here + "(Diff): a number was expected, not \"1e3\"");
    EXPECT_EQ(refusal("1,2\r\n24\r\n", team), here + "(Team): no team of the league has the number 24");
    EXPECT_EQ(refusal("1,2\r\n-1\r\n", team), here + "(Team): no team of the league has the number -1");
    EXPECT_EQ(refusal("1,2\r\n", integer16), here + "(Wins): the file ends before it");
}

TEST(ItemReader, RefusesATornTextAndAFileThatIsCut) {
    const auto text = [](ItemReader& reader) { reader.text("Name"); };
    EXPECT_EQ(refusal("\"Jo\r\n", text),
              "Some File.txt, line 1, item 1 (Name): the text has no closing quote");
    EXPECT_THAT(refusal("\"Jo\"x,1\r\n", text), StartsWith("Some File.txt, line 1, item 1 (Name): "));
    EXPECT_EQ(refusal("1,2", text), "Some File.txt: the file is cut: its last line has no end");
    ItemReader roster("Players List.txt", "Jo,9", LastLine::MayLackEnd);
    EXPECT_EQ(roster.text("Name"), "Jo");
    EXPECT_EQ(roster.integer16("Number"), 9);
    EXPECT_TRUE(roster.atEnd());
}

TEST(ItemReader, ReadsWhatAnyEditorHasSaved) {
    ItemReader marked("Players List.txt", "\xEF\xBB\xBFJosé,9\n");
    EXPECT_EQ(marked.text("Name"), "José");
    ItemReader windows("Players List.txt", "\"Jos\xe9\",9\n");
    EXPECT_EQ(windows.text("Name"), "José");
}

TEST(LineWriter, WritesWhatTheReaderTakes) {
    LineWriter writer("Some File.txt");
    writer.integer(-7).text("Name", "a, b").number(0.25).raw("").raw("\"1:05\"").endLine();
    writer.text("Name", "").endLine();
    EXPECT_EQ(writer.content(), "-7,\"a, b\",0.25,,\"1:05\"\r\n\"\"\r\n");
}

/// The message with which `write` refuses the third item of the second line.
std::string refusalOf(const std::function<void(LineWriter&)>& write) {
    LineWriter writer("Some File.txt");
    writer.endLine().integer(1).integer(2);
    return errorMessage([&] { write(writer); });
}

TEST(LineWriter, NamesFileLineItemAndFieldOfWhatTheFileCannotHold) {
    const std::string here = "Some File.txt, line 2, item 3 ";
    EXPECT_EQ(refusalOf([](LineWriter& w) { w.integer16("Pts", 32768); }),
              here + "(Pts): 32768 is more than the league's files can hold");
    EXPECT_EQ(refusalOf([](LineWriter& w) { w.integer16("Pts", 32767).integer16("G", -32768); }), "no error");
    EXPECT_THAT(refusalOf([](LineWriter& w) { w.text("Name", "a\"b"); }), StartsWith(here + "(Name): "));
    EXPECT_THAT(refusalOf([](LineWriter& w) { w.text("Name", "a\nb"); }), StartsWith(here + "(Name): "));
}

TEST(Fields, AreReadUpToTheCount) {
    ItemReader reader("f", "1,2,0.5\r\n4\r\n");
    SkaterStats stats;
    stats.A = 99;
    readFields(reader, stats, 3);
    EXPECT_EQ(stats.GP, 1);
    EXPECT_EQ(stats.G, 2);
    EXPECT_EQ(stats.GPG, 0.5);
    EXPECT_EQ(stats.A, 99) << "the fields after the count keep their values";
}

} // namespace
} // namespace iceline
