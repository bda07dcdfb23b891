#include "light/lightcmd/light_name.h"

#include "sdk/sys/case_fold.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace quor::light {
namespace {

using Names = std::vector<ZrString>;

std::int16_t nextFree(std::int16_t last, const ZrString& prefix, const Names& names) {
    return nextFreeNumber(last, prefix, [&](const ZrString& candidate) {
        return std::any_of(names.begin(), names.end(),
                           [&](const ZrString& name) { return equalFolded(name, candidate); });
    });
}

// The rule in its plainest form: go through the names; at an equal one take the next number and begin again.
std::int16_t plainNextFree(std::int16_t last, const ZrString& prefix, const Names& names) {
    auto number = static_cast<std::int16_t>(last + 1);
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

// The lights of a bit set: bit 0 is the first light of the pool.
Names subset(const Names& pool, unsigned bits) {
    Names chosen;
    for (std::size_t i = 0; i < pool.size(); ++i)
        if ((bits >> i & 1U) != 0)
            chosen.push_back(pool[i]);
    return chosen;
}

TEST(NextFreeNumber, TheFirstLightOfAllGetsOne) { EXPECT_EQ(nextFree(0, L"点光源", {}), 1); }

TEST(NextFreeNumber, AGapIsFilled) { EXPECT_EQ(nextFree(0, L"点光源", {L"点光源1", L"点光源3"}), 2); }

TEST(NextFreeNumber, TakenNumbersAreSkipped) { EXPECT_EQ(nextFree(0, L"点光源", {L"点光源1", L"点光源2"}), 3); }

TEST(NextFreeNumber, NumbersBehindTheCounterAreNotLookedAtAgain) { EXPECT_EQ(nextFree(2, L"点光源", {L"点光源3"}), 4); }

TEST(NextFreeNumber, NamesThatDifferOnlyInCaseAreTaken) { EXPECT_EQ(nextFree(0, L"Lamp", {L"LAMP1", L"lamp2"}), 3); }

TEST(NextFreeNumber, OtherWordsAndLeadingZerosTakeNoNumber) {
    EXPECT_EQ(nextFree(0, L"点光源", {L"聚光灯1", L"点光源01", L"点光源 1", L"点光源1 "}), 1);
}

TEST(NextFreeNumber, TheCounterRunsOverIntoTheNegativeNumbers) {
    EXPECT_EQ(nextFree(32766, L"点光源", {}), 32767);
    EXPECT_EQ(nextFree(32767, L"点光源", {}), -32768);
    EXPECT_EQ(nextFree(-1, L"点光源", {}), 0);
}

TEST(NextFreeNumber, TheSearchGoesOnOverTheEndOfTheNumbers) {
    EXPECT_EQ(nextFree(32766, L"点光源", {L"点光源32767", L"点光源-32768"}), -32767);
}

TEST(NextFreeNumber, WithEveryNumberTakenTheSearchEndsWhereItBegan) {
    int asked = 0;

    const std::int16_t number = nextFreeNumber(41, L"点光源", [&](const ZrString&) {
        ++asked;
        return true;
    });

    EXPECT_EQ(number, 42);
    EXPECT_EQ(asked, 65536);
}

TEST(NextFreeNumber, TheLastFreeNumberOfAllIsFound) {
    const std::int16_t number = nextFreeNumber(41, L"点光源", [](const ZrString& name) { return name != L"点光源41"; });

    EXPECT_EQ(number, 41);
}

TEST(NextFreeNumber, AgreesWithThePlainRuleWhateverLightsThereAre) {
    const Names pool = {L"lamp4", L"Lamp2", L"LAMP1", L"lamp05", L"Lamp5", L"lamp3", L"lamp"};

    for (unsigned bits = 0; bits < 1U << pool.size(); ++bits)
        for (std::int16_t last = -1; last <= 5; ++last)
            EXPECT_EQ(nextFree(last, L"Lamp", subset(pool, bits)), plainNextFree(last, L"Lamp", subset(pool, bits)))
                << bits << " from " << last;
}

TEST(DefaultLightName, TheNumberIsWrittenInDecimalBehindTheWord) {
    EXPECT_EQ(defaultLightName(L"点光源", 7), L"点光源7");
    EXPECT_EQ(defaultLightName(L"点光源", -32768), L"点光源-32768");
    EXPECT_EQ(defaultLightName(L"", 0), L"0");
}

} // namespace
} // namespace quor::light
