#include "host/ed/command_table.h"

#include <gtest/gtest.h>

using namespace quor::ed;

namespace {

Command command(const wchar_t* group, const wchar_t* global, const wchar_t* local, bool isHost = false) {
    return {.group = group,
            .globalName = global,
            .localName = local,
            .flags = 0,
            .run = [] { return 0; },
            .isHost = isHost};
}

ZrString found(const CommandTable& table, const wchar_t* typed) {
    const Command* result = table.find(parseCommandWord(typed));
    return result != nullptr ? result->group + L"." + result->globalName : ZrString(L"(none)");
}

TEST(CommandTable, MarksComeOffTheFrontInAnyOrder) {
    const CommandWord word = parseCommandWord(L"'_.Line");
    EXPECT_EQ(word.name, L"Line");
    EXPECT_TRUE(word.transparent && word.hostOnly && word.globalOnly);
    EXPECT_FALSE(parseCommandWord(L"a.b").hostOnly);
}

TEST(CommandTable, NamesMatchWithoutRegardToCase) {
    CommandTable table;
    table.add(command(L"A", L"distantlight", L"平行光"));
    EXPECT_EQ(found(table, L"DISTANTLIGHT"), L"A.distantlight");
    EXPECT_EQ(found(table, L"平行光"), L"A.distantlight");
}

TEST(CommandTable, LocalNameComesBeforeGlobalName) {
    CommandTable table;
    table.add(command(L"A", L"SHOW", L"SHOW"));
    table.add(command(L"A", L"HIDE", L"CLOSE"));
    table.add(command(L"A", L"CLOSE", L"END"));
    EXPECT_EQ(found(table, L"close"), L"A.HIDE");
    EXPECT_EQ(found(table, L"_close"), L"A.CLOSE");
}

TEST(CommandTable, UnderscoreDoesNotFindLocalNames) {
    CommandTable table;
    table.add(command(L"A", L"LINE", L"LINIE"));
    EXPECT_EQ(found(table, L"_LINIE"), L"(none)");
    EXPECT_EQ(found(table, L"_LINE"), L"A.LINE");
}

TEST(CommandTable, NameComesBeforeAlias) {
    CommandTable table;
    table.add(command(L"A", L"L", L"L"));
    table.add(command(L"A", L"LINE", L"LINE"));
    EXPECT_TRUE(table.addAlias(L"L", L"LINE"));
    EXPECT_TRUE(table.addAlias(L"LI", L"LINE"));
    EXPECT_EQ(found(table, L"l"), L"A.L");
    EXPECT_EQ(found(table, L"li"), L"A.LINE");
}

TEST(CommandTable, AliasIsTakenOnce) {
    CommandTable table;
    EXPECT_TRUE(table.addAlias(L"L", L"LINE"));
    EXPECT_FALSE(table.addAlias(L"l", L"LIGHT"));
    EXPECT_EQ(table.aliasesOf(L"line"), std::vector<ZrString>{L"l"});
}

TEST(CommandTable, LaterGroupHidesTheHostsOwnExceptForADot) {
    CommandTable table;
    table.add(command(L"QUOR", L"LINE", L"LINE", true));
    table.add(command(L"MINE", L"LINE", L"LINE"));
    EXPECT_EQ(found(table, L"LINE"), L"MINE.LINE");
    EXPECT_EQ(found(table, L".LINE"), L"QUOR.LINE");
    EXPECT_EQ(found(table, L"_.line"), L"QUOR.LINE");
}

TEST(CommandTable, HiddenCommandComesBackWhenTheLaterOneGoes) {
    CommandTable table;
    table.add(command(L"QUOR", L"LINE", L"LINE", true));
    table.add(command(L"MINE", L"LINE", L"LINE"));
    EXPECT_TRUE(table.remove(L"MINE", L"line"));
    EXPECT_EQ(found(table, L"LINE"), L"QUOR.LINE");
}

TEST(CommandTable, GlobalNameIsTakenOncePerGroup) {
    CommandTable table;
    EXPECT_TRUE(table.add(command(L"A", L"LINE", L"X")));
    EXPECT_FALSE(table.add(command(L"A", L"line", L"Y")));
    EXPECT_EQ(found(table, L"Y"), L"(none)");
}

TEST(CommandTable, EmptyNameIsRefused) {
    CommandTable table;
    EXPECT_FALSE(table.add(command(L"A", L"", L"X")));
}

TEST(CommandTable, RemovedGroupIsGoneAndOthersStay) {
    CommandTable table;
    table.add(command(L"A", L"ONE", L"ONE"));
    table.add(command(L"A", L"TWO", L"TWO"));
    table.add(command(L"B", L"THREE", L"THREE"));
    table.removeGroup(L"A");
    EXPECT_EQ(found(table, L"ONE"), L"(none)");
    EXPECT_EQ(found(table, L"TWO"), L"(none)");
    EXPECT_EQ(found(table, L"THREE"), L"B.THREE");
    EXPECT_FALSE(table.remove(L"A", L"ONE"));
}

TEST(CommandTable, AllAreSortedByGlobalName) {
    CommandTable table;
    table.add(command(L"A", L"b", L"b"));
    table.add(command(L"A", L"A", L"z"));
    ASSERT_EQ(table.all().size(), 2U);
    EXPECT_EQ(table.all().front()->globalName, L"A");
}

} // namespace
