#include "host/db/name_counts.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace quor::db {
namespace {

ZrString numbered(int i) { return L"Lamp " + std::to_wstring(i); }

TEST(NameCounts, ANameThatWasNeverAddedOccursNotAtAll) {
    const NameCounts names;
    EXPECT_EQ(names.count(L"Lamp"), 0U);
    EXPECT_EQ(names.count(L""), 0U);
}

TEST(NameCounts, NamesThatDifferInCaseAreOne) {
    NameCounts names;
    EXPECT_EQ(names.add(L"Straße Ä"), 1U);
    EXPECT_EQ(names.add(L"STRAßE ä"), 2U);
    EXPECT_EQ(names.count(L"straße Ä"), 2U);
    EXPECT_EQ(names.count(L"strasse ä"), 0U);
}

TEST(NameCounts, TheEmptyNameIsANameToo) {
    NameCounts names;
    names.add(L"");
    EXPECT_EQ(names.count(L""), 1U);
    EXPECT_EQ(names.remove(L""), 0U);
    EXPECT_EQ(names.count(L""), 0U);
}

TEST(NameCounts, RemovingWhatIsNotThereChangesNothing) {
    NameCounts names;
    names.add(L"Lamp");
    EXPECT_EQ(names.remove(L"Lamp 1"), 0U);
    EXPECT_EQ(names.count(L"Lamp"), 1U);
}

TEST(NameCounts, EachNameIsVisitedOnce) {
    NameCounts names;
    std::multiset<ZrString> visited;
    for (const wchar_t* name : {L"a", L"b", L"A", L"c"})
        names.add(name);
    names.remove(L"c");

    names.forEach([&](const ZrString& name) { visited.insert(name); });

    EXPECT_EQ(visited, (std::multiset<ZrString>{L"a", L"b"}));
}

// Names that come and go in an order without a pattern, beside a plain map.
TEST(NameCounts, AgreesWithAPlainMapAfterManyChanges) {
    NameCounts names;
    std::map<ZrString, std::uint32_t> plain;
    std::uint32_t state = 1;
    const auto random = [&state](std::uint32_t below) {
        return (state = state * 1664525 + 1013904223) / 65536 % below;
    };

    for (int step = 0; step < 20'000; ++step) {
        const ZrString name = numbered(static_cast<int>(random(500)));
        std::uint32_t& count = plain[name];
        const bool isAdded = count == 0 || random(2) == 0;
        count += isAdded ? 1 : -1;
        EXPECT_EQ(isAdded ? names.add(name) : names.remove(name), count);
    }

    for (int i = 0; i < 500; ++i)
        EXPECT_EQ(names.count(numbered(i)), plain[numbered(i)]) << i;
}

} // namespace
} // namespace quor::db
