#include "light/lightcmd/color_input.h"

#include "tests/support/translated_session.h"

namespace quor::light {
namespace {

class ColorInputTest : public testing::Test {
protected:
    // What is left of a text, and whether it is taken for an index or a name.
    struct Index {
        bool isOne;
        ZrString text;
        bool operator==(const Index&) const = default;
    };
    static Index readIndex(ZrString text) {
        const bool isOne = isColorIndexName(text.data());
        return {isOne, text.substr(0, text.find(L'\0'))};
    }

    test::TestSession session_;
};

class RgbTriple : public ColorInputTest, public testing::WithParamInterface<const wchar_t*> {};
class NoRgbTriple : public ColorInputTest, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(RgbTriple, IsAccepted) { EXPECT_TRUE(isRgbTriple(GetParam())); }

INSTANTIATE_TEST_SUITE_P(All, RgbTriple,
                         testing::Values(L"0,0,0", L"255,255,255", L"255,128,0", L"007,1,2", L"0,0,256", L"0,0,300",
                                         L"0,0,99999999999999999999"));

TEST_P(NoRgbTriple, IsRefused) { EXPECT_FALSE(isRgbTriple(GetParam())); }

INSTANTIATE_TEST_SUITE_P(All, NoRgbTriple,
                         testing::Values(nullptr, L"", L",", L",,", L"1", L"1,2", L"1,2,3,4", L"1,2,3,", L"1,2,",
                                         L",2,3", L"1,,3", L"256,0,0", L"0,256,0", L"-1,0,0", L"0,0,-1", L"+1,0,0",
                                         L"1.0,0,0", L"0,0,1.0", L"1, 2,3", L" 1,2,3", L"1,2,3 ", L"1;2;3", L"a,b,c",
                                         L"１,2,3", L"1,2,３"));

TEST_F(ColorInputTest, ThreeDigitsAreTheSameInEveryUnitOfLength) {
    zwutads::setVar(L"LUNITS", 4);

    EXPECT_TRUE(isRgbTriple(L"255,128,0"));
    EXPECT_FALSE(isRgbTriple(L"256,128,0"));
}

TEST_F(ColorInputTest, ATripleIsReadIntoItsThreeNumbers) {
    double out[3] = {};

    EXPECT_TRUE(parseTriple(L"30,50,360", out));

    EXPECT_EQ(out[0], 30);
    EXPECT_EQ(out[1], 50);
    EXPECT_EQ(out[2], 360);
}

TEST_F(ColorInputTest, ATripleIsReadWithFractionsAndSigns) {
    double out[3] = {};

    EXPECT_TRUE(parseTriple(L"-1,2.5,1e2", out));

    EXPECT_EQ(out[0], -1);
    EXPECT_EQ(out[1], 2.5);
    EXPECT_EQ(out[2], 100);
}

TEST_F(ColorInputTest, AnEmptyTripleIsReadAndLeavesTheNumbersAlone) {
    double out[3] = {7, 8, 9};

    EXPECT_TRUE(parseTriple(L"", out));

    EXPECT_EQ(out[0], 7);
    EXPECT_EQ(out[2], 9);
}

TEST_F(ColorInputTest, TheLastNumberOfAShortTripleIsTheThird) {
    double out[3] = {7, 8, 9};

    EXPECT_TRUE(parseTriple(L"1,2", out));

    EXPECT_EQ(out[0], 1);
    EXPECT_EQ(out[1], 8);
    EXPECT_EQ(out[2], 2);
}

TEST_F(ColorInputTest, ANumberThatCannotBeReadFailsWhereverItStands) {
    double out[3] = {};

    EXPECT_FALSE(parseTriple(L"x,2,3", out));
    EXPECT_FALSE(parseTriple(L"1,,3", out));
    EXPECT_FALSE(parseTriple(L"1,2,", out));
    EXPECT_FALSE(parseTriple(L"1,2,3,4", out));
    EXPECT_FALSE(parseTriple(L"1,2,nan", out));
}

TEST_F(ColorInputTest, NumbersAreRoundedWithHalvesUp) {
    double v[3] = {0.5, 1.49999, 2.5};

    roundTriple(v);

    EXPECT_EQ(v[0], 1);
    EXPECT_EQ(v[1], 1);
    EXPECT_EQ(v[2], 3);
}

TEST_F(ColorInputTest, WhatIsJustBelowAHalfIsRoundedDown) {
    double v[3] = {0.49999999999999994, 254.49999999999997, 127.5};

    roundTriple(v);

    EXPECT_EQ(v[0], 0);
    EXPECT_EQ(v[1], 254);
    EXPECT_EQ(v[2], 128);
}

TEST_F(ColorInputTest, EnglishAndLocalNamesAreKeptAsTheyAre) {
    EXPECT_EQ(readIndex(L"red"), (Index{true, L"red"}));
    EXPECT_EQ(readIndex(L"MAGENTA"), (Index{true, L"MAGENTA"}));
    EXPECT_EQ(readIndex(L"white"), (Index{true, L"white"}));
    EXPECT_EQ(readIndex(L"红"), (Index{true, L"红"}));
    EXPECT_EQ(readIndex(L"洋红"), (Index{true, L"洋红"}));
    EXPECT_EQ(readIndex(L"白"), (Index{true, L"白"}));
}

TEST_F(ColorInputTest, AnIndexIs1To255) {
    EXPECT_EQ(readIndex(L"0"), (Index{false, L"0"}));
    EXPECT_EQ(readIndex(L"1"), (Index{true, L"1"}));
    EXPECT_EQ(readIndex(L"255"), (Index{true, L"255"}));
    EXPECT_EQ(readIndex(L"256"), (Index{false, L"256"}));
    EXPECT_EQ(readIndex(ZrString(400, L'9')), (Index{false, ZrString(400, L'9')}));
}

TEST_F(ColorInputTest, WhatIsNoNameIsCutBeforeItsFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(readIndex(L"12ab"), (Index{true, L"12"}));
    EXPECT_EQ(readIndex(L"300x"), (Index{false, L"300"}));
    EXPECT_EQ(readIndex(L"7.9"), (Index{true, L"7"}));
    EXPECT_EQ(readIndex(L"ab"), (Index{false, L""}));
    EXPECT_EQ(readIndex(L"-5"), (Index{false, L""}));
    EXPECT_EQ(readIndex(L"redd"), (Index{false, L""}));
    EXPECT_EQ(readIndex(L"_Red"), (Index{false, L""}));
    EXPECT_EQ(readIndex(L""), (Index{false, L""}));
}

TEST_F(ColorInputTest, NoTextIsNoIndex) { EXPECT_FALSE(isColorIndexName(nullptr)); }

TEST(ColorInputInAnotherLanguage, TheNamesOfThePackAreNames) {
    const test::TranslatedSession session("quorcmdres.txt", "6924 = \"Scarlet\"\n");
    ZrString pack = L"SCARLET";
    ZrString english = L"red";
    ZrString builtIn = L"红";

    EXPECT_TRUE(isColorIndexName(pack.data()));
    EXPECT_TRUE(isColorIndexName(english.data()));
    EXPECT_FALSE(isColorIndexName(builtIn.data()));
}

} // namespace
} // namespace quor::light
