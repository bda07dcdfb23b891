#include "host/sys/text_table.h"

#include <gtest/gtest.h>

#include <vector>

namespace quor {

namespace {

std::vector<ZrString> rowsOf(const TextTable& table, const TextTable::Block& block) {
    std::vector<ZrString> rows;
    table.forEachRow(block, [&](const ZrString& row) { rows.push_back(row); });
    return rows;
}

class TheTable : public testing::Test {
protected:
    TheTable() {
        table.addColumn(L"Name", Align::Left);
        table.addColumn(L"cd", Align::Right);
    }
    void add(const ZrString& name, const ZrString& candela) {
        table.addCell(name);
        table.addCell(candela);
    }

    ZrString heading() { return table.heading(table.blocks(kWidth).front()); }
    ZrString row(std::size_t index) { return rowsOf(table, table.blocks(kWidth).front())[index]; }

    static constexpr int kWidth = 80;
    TextTable table;
};

TEST_F(TheTable, IsAsWideAsItsWidestTexts) {
    add(L"a", L"1500.0000");
    add(L"hall lamp", L"2.0000");

    EXPECT_EQ(heading(), L"  Name              cd\n");
    EXPECT_EQ(row(0), L"  a          1500.0000\n");
    EXPECT_EQ(row(1), L"  hall lamp     2.0000\n");
}

TEST_F(TheTable, IsAsWideAsItsHeadingsAtLeast) {
    add(L"a", L"1");

    EXPECT_EQ(heading(), L"  Name  cd\n");
    EXPECT_EQ(row(0), L"  a      1\n");
}

TEST_F(TheTable, CountsChineseCharactersAsTwoColumns) {
    add(L"吊灯", L"1");
    add(L"abcdef", L"2");

    EXPECT_EQ(row(0), L"  吊灯     1\n");
    EXPECT_EQ(row(1), L"  abcdef   2\n");
}

TEST_F(TheTable, HasNoBlanksAtTheEndOfALine) {
    TextTable names;
    names.addColumn(L"cd", Align::Right);
    names.addColumn(L"Name", Align::Left);
    names.addCell(L"1");
    names.addCell(L"a");
    names.addCell(L"2");
    names.addCell(L"longer");

    EXPECT_EQ(rowsOf(names, names.blocks(80)[0])[0], L"   1  a\n");
    EXPECT_EQ(names.heading(names.blocks(80)[0]), L"  cd  Name\n");
}

TEST_F(TheTable, ShowsADashForWhatARowHasNot) {
    add(L"a", L"");
    add(L"b", L"2000");

    EXPECT_EQ(row(0), L"  a        -\n");
}

TEST_F(TheTable, LeavesOutAColumnWithoutAnyText) {
    add(L"a", L"");
    add(L"b", L"");

    EXPECT_EQ(heading(), L"  Name\n");
    EXPECT_EQ(row(1), L"  b\n");
}

TEST_F(TheTable, ShowsAColumnWithoutAnyTextThatIsToBeKept) {
    table.keepLast();
    add(L"a", L"");

    EXPECT_EQ(heading(), L"  Name  cd\n");
    EXPECT_EQ(row(0), L"  a      -\n");
}

TEST_F(TheTable, SpellsControlCharactersOut) {
    add(L"a\x1B[2J", L"1");

    EXPECT_EQ(row(0), L"  a^[[2J   1\n");
}

TEST_F(TheTable, KeepsACharacterThatCameFromABrokenFile) {
    add(L"a\xDCFF"
        L"b",
        L"1");

    EXPECT_EQ(row(0), L"  a\xDCFF"
                      L"b    1\n");
}

TEST_F(TheTable, HasARowForEachOfItsNames) {
    add(L"a", L"1");
    add(L"b", L"2");
    add(L"c", L"3");

    EXPECT_EQ(table.rows(), 3U);
    EXPECT_EQ(rowsOf(table, table.blocks(kWidth).front()).size(), 3U);
}

// Columns of 6 characters each: the name, a single number, the coordinates of a point.
class AWideTable : public testing::Test {
protected:
    AWideTable() {
        table.addColumn(L"Name", Align::Left);
        table.addColumn(L"Factor", Align::Right);
        table.addColumn(L"X", Align::Right);
        table.addBesideLast(L"Y", Align::Right);
        for (const wchar_t* text : {L"lights", L"1.0000", L"2.0000", L"3.0000"})
            table.addCell(text);
    }
    std::vector<ZrString> rows(int width) {
        std::vector<ZrString> rows;
        for (const TextTable::Block& block : table.blocks(width))
            rows.push_back(rowsOf(table, block)[0]);
        return rows;
    }

    TextTable table;
};

TEST_F(AWideTable, IsOneBlockWhereItFits) {
    EXPECT_EQ(rows(31), std::vector<ZrString>({L"  lights  1.0000  2.0000 3.0000\n"}));
}

TEST_F(AWideTable, IsTwoBlocksThatBothBeginWithTheName) {
    EXPECT_EQ(rows(30), std::vector<ZrString>({L"  lights  1.0000\n", L"  lights  2.0000 3.0000\n"}));
}

TEST_F(AWideTable, KeepsWhatBelongsTogether) {
    EXPECT_EQ(rows(16), std::vector<ZrString>({L"  lights  1.0000\n", L"  lights  2.0000 3.0000\n"}));
}

TEST_F(AWideTable, HasACompanionWithEveryNameHoweverNarrowTheTerminal) {
    EXPECT_EQ(rows(1), std::vector<ZrString>({L"  lights  1.0000\n", L"  lights  2.0000 3.0000\n"}));
}

// A handle and a name lead; the name may be cut.
class ATableThatCuts : public testing::Test {
protected:
    ATableThatCuts() {
        table.addColumn(L"Handle", Align::Left);
        table.addColumn(L"Name", Align::Left, Fit::MayBeCut);
        table.addColumn(L"Kind", Align::Left);
        table.addCell(L"2F");
        table.addCell(ZrString(30, L'x'));
        table.addCell(L"point");
    }
    ZrString row(int width) { return rowsOf(table, table.blocks(width)[0])[0]; }

    TextTable table{2};
};

TEST_F(ATableThatCuts, CutsNothingThatFits) { EXPECT_EQ(row(47), L"  2F      " + ZrString(30, L'x') + L"  point\n"); }

TEST_F(ATableThatCuts, CutsNoMoreThanItMust) {
    EXPECT_EQ(row(46), L"  2F      " + ZrString(28, L'x') + L"…  point\n");
    EXPECT_EQ(row(33), L"  2F      " + ZrString(15, L'x') + L"…  point\n");
}

TEST_F(ATableThatCuts, CutsMoreWhereEvenThatDoesNotFit) {
    EXPECT_EQ(row(32), L"  2F      " + ZrString(14, L'x') + L"…  point\n");
    EXPECT_EQ(row(20), L"  2F      xx…  point\n");
}

TEST_F(ATableThatCuts, KeepsACharacterHoweverNarrowTheTerminal) { EXPECT_EQ(row(1), L"  2F      xx…  point\n"); }

TEST_F(ATableThatCuts, CutsItsHeadingToo) { EXPECT_EQ(table.heading(table.blocks(20)[0]), L"  Handle  Na…  Kind\n"); }

TEST(ATableWithLeads, IsTwoBlocksThatBothBeginWithItsLeadsWhereCuttingIsNotEnough) {
    TextTable wider{2};
    for (const wchar_t* heading : {L"Handle", L"Name", L"Kind", L"Layer"})
        wider.addColumn(heading, Align::Left);
    for (const wchar_t* text : {L"2F", L"a", L"point", L"0"})
        wider.addCell(text);

    const auto blocks = wider.blocks(21);

    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(rowsOf(wider, blocks[0])[0], L"  2F      a     point\n");
    EXPECT_EQ(rowsOf(wider, blocks[1])[0], L"  2F      a     0\n");
}

TEST(ATableWithoutTexts, HasNoBlocks) {
    TextTable table;
    table.addColumn(L"Name", Align::Left);

    EXPECT_TRUE(table.blocks(80).empty());
}

TEST(CutToColumns, KeepsWhatFits) {
    EXPECT_EQ(cutToColumns(L"", 4), L"");
    EXPECT_EQ(cutToColumns(L"abcd", 4), L"abcd");
    EXPECT_EQ(cutToColumns(L"吊灯", 4), L"吊灯");
}

TEST(CutToColumns, ShowsThatSomethingIsMissing) {
    EXPECT_EQ(cutToColumns(L"abcde", 4), L"abc…");
    EXPECT_EQ(cutToColumns(L"吊灯台灯", 6), L"吊灯…");
    EXPECT_EQ(cutToColumns(L"吊灯台灯", 7), L"吊灯台…");
}

TEST(CutToColumns, CutsANameOf255Characters) {
    EXPECT_EQ(cutToColumns(ZrString(255, L'x'), 24), ZrString(23, L'x') + L"…");
}

} // namespace

} // namespace quor
