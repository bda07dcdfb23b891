#include "light/palette/row_sort.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <random>

namespace quor::light {
namespace {

constexpr RowOrder byName{.column = 1, .ascending = {true, true}};
constexpr RowOrder byNameDown{.column = 1, .ascending = {true, false}};
constexpr RowOrder byIcon{.column = 0, .ascending = {true, true}};
constexpr RowOrder byIconDown{.column = 0, .ascending = {false, true}};
constexpr RowOrder byIconNameDown{.column = 0, .ascending = {true, false}};

// Rows whose names stay where they are.
class Rows {
public:
    void add(const ZrString& name, int image = 0) {
        names_.push_back(name);
        rows_.push_back({&names_.back(), image, static_cast<unsigned>(rows_.size())});
    }
    [[nodiscard]] const std::vector<SortRow>& all() const { return rows_; }

private:
    std::deque<ZrString> names_;
    std::vector<SortRow> rows_;
};

std::vector<unsigned> idsOf(const std::vector<SortRow>& rows) {
    std::vector<unsigned> ids(rows.size());
    std::ranges::transform(rows, ids.begin(), &SortRow::row);
    return ids;
}

std::vector<unsigned> sorted(std::vector<SortRow> rows, const RowOrder& order) {
    sortRows(rows, order);
    return idsOf(rows);
}

std::vector<unsigned> plainlySorted(std::vector<SortRow> rows, const RowOrder& order) {
    std::ranges::stable_sort(rows, [&](const SortRow& a, const SortRow& b) { return precedes(a, b, order); });
    return idsOf(rows);
}

// Two thousand names from pieces, many of them equal.
Rows rowsOf(const ZrString& prefix, const std::vector<ZrString>& pieces, unsigned most) {
    std::mt19937 random(most);
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    Rows rows;
    for (int i = 0; i < 2000; ++i) {
        ZrString name = prefix;
        for (std::size_t count = below(most + std::size_t{1}); count > 0; --count)
            name += pieces[below(pieces.size())];
        rows.add(name, static_cast<int>(below(5)) - 1);
    }
    return rows;
}

void expectSortedInEveryOrder(const Rows& rows) {
    for (const RowOrder& order : {byName, byNameDown, byIcon, byIconDown, byIconNameDown})
        EXPECT_EQ(sorted(rows.all(), order), plainlySorted(rows.all(), order));
}

TEST(RowOrders, ComparesNamesAsTextsDo) {
    Rows rows;
    rows.add(L"b", 0);
    rows.add(L"a", 1);
    const SortRow& b = rows.all()[0];
    const SortRow& a = rows.all()[1];

    EXPECT_TRUE(precedes(a, b, byName));
    EXPECT_FALSE(precedes(b, a, byName));
    EXPECT_FALSE(precedes(a, a, byName));
    EXPECT_TRUE(precedes(b, a, byNameDown));
    EXPECT_FALSE(precedes(a, a, byNameDown));
}

TEST(RowOrders, ComparesNamesOnlyWhereIconsAreTheSame) {
    Rows rows;
    rows.add(L"b", 0);
    rows.add(L"a", 1);
    rows.add(L"c", 1);
    const SortRow& b = rows.all()[0];
    const SortRow& a = rows.all()[1];
    const SortRow& c = rows.all()[2];

    EXPECT_TRUE(precedes(b, a, byIcon));
    EXPECT_TRUE(precedes(a, b, byIconDown));
    EXPECT_TRUE(precedes(a, c, byIconDown));
    EXPECT_TRUE(precedes(c, a, byIconNameDown));
}

TEST(RowOrders, AreTheSameWhenOnlyADirectionThatDoesNotCountDiffers) {
    EXPECT_TRUE(isSameOrder(byName, {.column = 1, .ascending = {false, true}}));
    EXPECT_FALSE(isSameOrder(byName, byNameDown));
    EXPECT_FALSE(isSameOrder(byName, byIcon));
    EXPECT_FALSE(isSameOrder(byIcon, byIconDown));
    EXPECT_FALSE(isSameOrder(byIcon, byIconNameDown));
}

TEST(RowSort, SortsNoRowsAndOneRow) {
    Rows one;
    one.add(L"a");

    EXPECT_TRUE(sorted({}, byName).empty());
    EXPECT_EQ(sorted(one.all(), byName), std::vector<unsigned>{0});
}

TEST(RowSort, SortsNumbersBehindAPrefix) {
    expectSortedInEveryOrder(rowsOf(L"点光源", {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"}, 4));
}

TEST(RowSort, SortsLongNamesThatDifferOnlyAtTheirEnds) {
    expectSortedInEveryOrder(rowsOf(L"", {L"long beginning ", L"long end "}, 9));
}

TEST(RowSort, SortsNamesOfAllKindsOfCharacters) {
    expectSortedInEveryOrder(rowsOf(L"", {L"a", L"光", L"\U0001F4A1", L"\U0001F526", L"\uFFFF", L"Z"}, 5));
}

TEST(RowSort, SortsCharactersThatAreNone) {
    const ZrString below(1, static_cast<wchar_t>(-5));
    const ZrString lower(1, static_cast<wchar_t>(-6));
    const ZrString zero(1, L'\0');
    expectSortedInEveryOrder(rowsOf(L"", {below, lower, zero, L"a"}, 4));
}

TEST(RowSort, KeepsTheOrderOfEqualNames) { expectSortedInEveryOrder(rowsOf(L"same", {L"x"}, 0)); }

} // namespace
} // namespace quor::light
