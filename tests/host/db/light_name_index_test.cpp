#include "host/db/light_name_index.h"

#include <gtest/gtest.h>
#include <vector>

namespace quor::db {
namespace {

void addNumbers(LightNameIndex& names, const ZrString& prefix, int first, int last) {
    for (int number = first; number <= last; ++number)
        names.add(prefix + std::to_wstring(number));
}

using Names = std::vector<ZrString>;

// The rule in its plainest form: go through the names; at an equal one take the next number and begin again.
std::int16_t plainNextFree(std::int16_t start, const ZrString& prefix, const Names& names) {
    std::int16_t number = start;
    for (std::size_t i = 0; i < names.size();) {
        if (equalFolded(names[i], prefix + std::to_wstring(number))) {
            ++number;
            i = 0;
        } else {
            ++i;
        }
    }
    return number;
}

// The names of a bit set: bit 0 is the first of the pool.
Names subset(const Names& pool, unsigned bits) {
    Names chosen;
    for (std::size_t i = 0; i < pool.size(); ++i)
        if ((bits >> i & 1U) != 0)
            chosen.push_back(pool[i]);
    return chosen;
}

std::int16_t indexedNextFree(std::int16_t start, const ZrString& prefix, const Names& names) {
    LightNameIndex index;
    for (const ZrString& name : names)
        index.add(name);
    return index.nextFree(prefix, start);
}

TEST(LightNameIndex, AgreesWithThePlainRuleWhateverLightsThereAre) {
    const Names pool = {L"lamp4", L"Lamp2", L"LAMP1", L"lamp05", L"Lamp5", L"lamp3", L"lamp"};

    for (unsigned bits = 0; bits < 1U << pool.size(); ++bits)
        for (std::int16_t start = 0; start <= 6; ++start)
            EXPECT_EQ(indexedNextFree(start, L"Lamp", subset(pool, bits)),
                      plainNextFree(start, L"Lamp", subset(pool, bits)))
                << bits << " from " << start;
}

TEST(LightNameIndex, CountsANameWithoutRegardToCase) {
    LightNameIndex names;
    names.add(L"Lamp");
    names.add(L"LAMP");

    EXPECT_EQ(names.count(L"lamp"), 2U);
    EXPECT_EQ(names.count(L"lamp1"), 0U);
}

TEST(LightNameIndex, ANameThatIsRemovedAsOftenAsAddedIsGone) {
    LightNameIndex names;
    names.add(L"Lamp");
    names.add(L"Lamp");
    names.remove(L"lamp");
    EXPECT_EQ(names.count(L"Lamp"), 1U);
    names.remove(L"LAMP");
    EXPECT_EQ(names.count(L"Lamp"), 0U);
}

TEST(LightNameIndex, TheStartIsFreeWhereNothingIsTaken) {
    LightNameIndex names;
    EXPECT_EQ(names.nextFree(L"Lamp", 7), 7);
}

TEST(LightNameIndex, NumbersThatAreTakenAreSkipped) {
    LightNameIndex names;
    addNumbers(names, L"Lamp", 1, 200);
    EXPECT_EQ(names.nextFree(L"lamp", 1), 201);
    EXPECT_EQ(names.nextFree(L"lamp", 150), 201);
    EXPECT_EQ(names.nextFree(L"lamp", 201), 201);
}

TEST(LightNameIndex, ANumberThatBecomesFreeIsFoundAgain) {
    LightNameIndex names;
    addNumbers(names, L"Lamp", 1, 200);
    ASSERT_EQ(names.nextFree(L"Lamp", 1), 201);
    names.remove(L"Lamp64");
    EXPECT_EQ(names.nextFree(L"Lamp", 1), 64);
}

TEST(LightNameIndex, ANumberIsTakenAsLongAsOneLightHasIt) {
    LightNameIndex names;
    names.add(L"Lamp1");
    names.add(L"LAMP1");
    ASSERT_EQ(names.nextFree(L"Lamp", 1), 2);
    names.remove(L"Lamp1");
    EXPECT_EQ(names.nextFree(L"Lamp", 1), 2);
}

TEST(LightNameIndex, NumbersThatAreWrittenOtherwiseDoNotCount) {
    LightNameIndex names;
    for (const wchar_t* name : {L"Lamp01", L"Lamp+1", L"Lamp 1", L"Lamp1a", L"Lamp1.0", L"Lamp70000", L"Lamp", L"Lam1"})
        names.add(name);
    EXPECT_EQ(names.nextFree(L"Lamp", 1), 1);
    EXPECT_EQ(names.nextFree(L"Lamp", 4464), 4464); // 70000 in 16 bits
}

TEST(LightNameIndex, MinusThirtyTwoThousandFollowsTheLargestNumber) {
    LightNameIndex names;
    addNumbers(names, L"Lamp", 32767, 32767);
    EXPECT_EQ(names.nextFree(L"Lamp", 32767), -32768);
}

TEST(LightNameIndex, TheSearchComesRoundToNumbersBeforeTheStart) {
    LightNameIndex names;
    addNumbers(names, L"Lamp", -32768, 9);
    addNumbers(names, L"Lamp", 11, 32767);
    EXPECT_EQ(names.nextFree(L"Lamp", 12), 10);
}

TEST(LightNameIndex, WithEveryNumberTakenTheStartIsAnswered) {
    LightNameIndex names;
    addNumbers(names, L"Lamp", -32768, 32767);
    EXPECT_EQ(names.nextFree(L"Lamp", 12), 12);
}

} // namespace
} // namespace quor::db
