#include "cli/TextTable.h"

#include "support/Test.h"

namespace iceline::cli {
namespace {

using namespace test;

TEST(TextTable, ColumnsAreAsWideAsTheirWidestCell) {
    TextTable table({{"Team", TextTable::Align::Left}, {"GP"}, {"Streak", TextTable::Align::Left}});
    table.addRow({"Boston Bruins", "7", "Won 2"});
    table.addRow({"LA", "12"});
    EXPECT_THAT(table.lines(),
                ElementsAre("Team           GP  Streak", "Boston Bruins   7  Won 2", "LA             12"));
}

TEST(TextTable, WithoutHeadsThereIsNoHeadLine) {
    TextTable table({{"", TextTable::Align::Left}, {""}});
    table.addRow({"Goals", "3"});
    EXPECT_THAT(table.lines(), ElementsAre("Goals  3"));
}

TEST(TextTable, ACharacterOfSeveralBytesTakesOneColumn) {
    TextTable table({{"Name", TextTable::Align::Left}, {"G"}});
    table.addRow({"Andr\xC3\xA9", "1"});
    table.addRow({"Luc", "2"});
    EXPECT_THAT(table.lines(), ElementsAre("Name   G", "Andr\xC3\xA9  1", "Luc    2"));
}

TEST(SideBySide, TheShorterSideIsFilledUp) {
    EXPECT_THAT(sideBySide({"abc", "d"}, {"1", "2", "3"}, 2), ElementsAre("abc  1", "d    2", "     3"));
    EXPECT_THAT(sideBySide({"abc", "d"}, {"1"}, 2), ElementsAre("abc  1", "d"));
}

} // namespace
} // namespace iceline::cli
