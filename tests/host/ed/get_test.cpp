#include "sdk/ed/get.h"

#include "host/texts/text.h"
#include "sdk/ed/selection.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <numbers>

using quor::test::TestSession;

namespace {

// Asks inside a command, as modules do.
class Get : public testing::Test {
protected:
    void type(std::initializer_list<ZrString> lines) { test_.front().type(lines); }
    [[nodiscard]] std::size_t asked() { return test_.front().asked().size(); }
    [[nodiscard]] bool shows(std::wstring_view text) { return test_.front().shows(text); }

    TestSession test_;
    ZrString text_ = L"before";
    double number_ = -7;
    int whole_ = -7;
    ZrGePoint3d point_{-7, -7, -7};
};

TEST_F(Get, ArmedFlagsServeOneQuestionOnly) {
    type({L"-1", L"1", L"-1"});
    zredInitGet(RSG_NONEG, nullptr);
    EXPECT_EQ(zredGetReal(L"\nFirst: ", number_), RTNORM);
    EXPECT_EQ(number_, 1);
    EXPECT_EQ(zredGetReal(L"\nSecond: ", number_), RTNORM);
    EXPECT_EQ(number_, -1);
}

TEST_F(Get, ArmedKeywordsServeOneQuestionOnly) {
    type({L"x", L"x", L""});
    zredInitGet(0, L"eXit _eXit");
    EXPECT_EQ(zredGetKword(L"\nFirst: ", text_), RTNORM);
    EXPECT_EQ(zredGetKword(L"\nSecond: ", text_), RTNONE);
    EXPECT_TRUE(shows(L"选项关键字无效。"));
}

TEST_F(Get, WrongAnswerRepeatsThePromptAsGiven) {
    type({L"abc", L"2"});
    EXPECT_EQ(zredGetReal(L"\n强度 <1>: ", number_), RTNORM);
    EXPECT_EQ(test_.front().screen(), L"强度 <1>: abc\n需要数值。\n强度 <1>: 2\n");
}

TEST_F(Get, EnterGivesRtnoneAndLeavesTheValueAlone) {
    type({L"", L"", L"", L"", L"", L""});
    EXPECT_EQ(zredGetReal(L"\n1: ", number_), RTNONE);
    EXPECT_EQ(zredGetInt(L"\n2: ", whole_), RTNONE);
    EXPECT_EQ(zredGetPoint(nullptr, L"\n3: ", point_), RTNONE);
    EXPECT_EQ(zredGetKword(L"\n4: ", text_), RTNONE);
    EXPECT_EQ(zredGetDist(nullptr, L"\n5: ", number_), RTNONE);
    EXPECT_EQ(zredGetAngle(nullptr, L"\n6: ", number_), RTNONE);
    EXPECT_EQ(number_, -7);
    EXPECT_EQ(whole_, -7);
    EXPECT_EQ(text_, L"before");
}

TEST_F(Get, EnterIsRefusedWhereItIsNoAnswer) {
    type({L"", L"5"});
    zredInitGet(RSG_NONULL, nullptr);
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTNORM);
    EXPECT_EQ(number_, 5);
    EXPECT_TRUE(shows(L"需要数值。"));
}

TEST_F(Get, StringAnswersEnterWithAnEmptyText) {
    type({L""});
    EXPECT_EQ(zredGetString(1, L"\nName: ", text_), RTNORM);
    EXPECT_EQ(text_, L"");
}

TEST_F(Get, EscapeGivesRtcan) {
    type({L"^C", L"^C", L"^C"});
    EXPECT_EQ(zredGetReal(L"\n1: ", number_), RTCAN);
    EXPECT_EQ(zredGetString(0, L"\n2: ", text_), RTCAN);
    EXPECT_EQ(zredGetKword(L"\n3: ", text_), RTCAN);
}

TEST_F(Get, EndOfInputGivesRtcan) { EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTCAN); }

TEST_F(Get, StringKeepsItsBlanksWhereTheyAreAccepted) {
    type({L" a  lamp "});
    EXPECT_EQ(zredGetString(1, L"\nName: ", text_), RTNORM);
    EXPECT_EQ(text_, L" a  lamp ");
}

TEST_F(Get, BlankEndsAStringWhereItIsNotAccepted) {
    type({L"one two"});
    EXPECT_EQ(zredGetString(0, L"\nFirst: ", text_), RTNORM);
    EXPECT_EQ(text_, L"one");
    EXPECT_EQ(zredGetString(0, L"\nSecond: ", text_), RTNORM);
    EXPECT_EQ(text_, L"two");
    EXPECT_EQ(asked(), 1U);
}

TEST_F(Get, AnswersOfEveryLengthAreHandedOverWhole) {
    for (const std::size_t length : {255U, 256U, 259U, 260U, 10000U}) {
        const ZrString name(length, L'灯');
        type({name});
        EXPECT_EQ(zredGetString(1, L"\nName: ", text_), RTNORM);
        EXPECT_EQ(text_, name);
    }
}

TEST_F(Get, LongArbitraryTextIsHandedOverWhole) {
    const ZrString text(10000, L'x');
    type({text});
    zredInitGet(RSG_OTHER, L"Kelvin _Kelvin");
    EXPECT_EQ(zredGetKword(L"\nColour: ", text_), RTNORM);
    EXPECT_EQ(text_, text);
}

TEST_F(Get, StringHandsOverWhatMatchesAKeywordAsTyped) {
    type({L"x"});
    zredInitGet(RSG_OTHER, L"eXit _eXit");
    EXPECT_EQ(zredGetString(0, L"\nName: ", text_), RTNORM);
    EXPECT_EQ(text_, L"x");
}

TEST_F(Get, KeywordAnswersItsGlobalWord) {
    type({L"j"});
    zredInitGet(0, L"Ja Nein _Yes No");
    EXPECT_EQ(zredGetKword(L"\n?: ", text_), RTNORM);
    EXPECT_EQ(text_, L"Yes");
    EXPECT_EQ(test_.front().lastKeywords(), (std::vector<ZrString>{L"Ja", L"Nein"}));
}

TEST_F(Get, KeywordWhereAPointIsAskedGivesRtkword) {
    type({L"v"});
    zredInitGet(0, L"Vector _Vector");
    EXPECT_EQ(zredGetPoint(nullptr, L"\nFrom: ", point_), RTKWORD);
    EXPECT_EQ(zredGetInput(text_), RTNORM);
    EXPECT_EQ(text_, L"Vector");
}

TEST_F(Get, ArbitraryTextWhereANumberIsAskedGivesRtkword) {
    type({L"much"});
    zredInitGet(RSG_OTHER, nullptr);
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTKWORD);
    zredGetInput(text_);
    EXPECT_EQ(text_, L"much");
}

TEST_F(Get, IntegerOutOfRangeIsAskedAgain) {
    type({L"0", L"11", L"10"});
    EXPECT_EQ(zredGetIntInRange(L"\nN: ", 1, 10, whole_), RTNORM);
    EXPECT_EQ(whole_, 10);
    EXPECT_EQ(asked(), 3U);
    EXPECT_TRUE(shows(L"需要 1 到 10 之间的整数。"));
}

TEST_F(Get, PointIsRememberedForRelativePoints) {
    type({L"1,2,3", L"@1,1"});
    zredGetPoint(nullptr, L"\n1: ", point_);
    zredGetPoint(nullptr, L"\n2: ", point_);
    EXPECT_EQ(point_, ZrGePoint3d(2, 3, 3));
    EXPECT_EQ(test_.document().lastPoint, ZrGePoint3d(2, 3, 3));
}

TEST_F(Get, PickedPointIsConvertedToTheUcs) {
    test_.document().drawing().setUcs(quor::db::Ucs{{100, 0, 0}, ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, {}});
    test_.front().pick({101, 2, 3});
    EXPECT_EQ(zredGetPoint(nullptr, L"\nP: ", point_), RTNORM);
    EXPECT_EQ(point_, ZrGePoint3d(1, 2, 3));
}

TEST_F(Get, RubberBandStartsInWorldCoordinates) {
    test_.document().drawing().setUcs(quor::db::Ucs{{100, 0, 0}, ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, {}});
    type({L"1,1"});
    const ZrGePoint3d base(5, 0, 0);
    zredGetPoint(&base, L"\nP: ", point_);
    EXPECT_EQ(test_.front().lastBase(), ZrGePoint3d(105, 0, 0));
}

TEST_F(Get, PickedPointIsNoNumber) {
    test_.front().pick({1, 2, 3});
    type({L"4"});
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTNORM);
    EXPECT_EQ(number_, 4);
    EXPECT_TRUE(shows(L"需要数值。"));
}

TEST_F(Get, DistanceIsMeasuredFromTheBase) {
    type({L"3,4,12"});
    const ZrGePoint3d base(0, 0, 0);
    EXPECT_EQ(zredGetDist(&base, L"\nD: ", number_), RTNORM);
    EXPECT_EQ(number_, 13);
}

TEST_F(Get, PlaneDistanceLeavesOutTheHeight) {
    type({L"3,4,12"});
    const ZrGePoint3d base(0, 0, 0);
    zredInitGet(RSG_2D, nullptr);
    EXPECT_EQ(zredGetDist(&base, L"\nD: ", number_), RTNORM);
    EXPECT_EQ(number_, 5);
}

TEST_F(Get, DistanceWithoutBaseAsksForASecondPoint) {
    type({L"1,1", L"1,3"});
    EXPECT_EQ(zredGetDist(nullptr, L"\nD: ", number_), RTNORM);
    EXPECT_EQ(number_, 2);
    EXPECT_EQ(test_.front().asked().back(), L"\n指定第二点: ");
}

TEST_F(Get, DistanceOfZeroIsRefusedWhereZeroIsNoAnswer) {
    type({L"1,1", L"1,2"});
    const ZrGePoint3d base(1, 1, 0);
    zredInitGet(RSG_NOZERO, nullptr);
    EXPECT_EQ(zredGetDist(&base, L"\nD: ", number_), RTNORM);
    EXPECT_EQ(number_, 1);
    EXPECT_TRUE(shows(L"值不能为零。"));
}

TEST_F(Get, AngleIsMeasuredBetweenPoints) {
    type({L"0,-5"});
    const ZrGePoint3d base(0, 0, 0);
    EXPECT_EQ(zredGetAngle(&base, L"\nA: ", number_), RTNORM);
    EXPECT_DOUBLE_EQ(number_, 1.5 * std::numbers::pi);
}

TEST_F(Get, AngleIsTypedInTheDrawingsUnits) {
    type({L"180"});
    EXPECT_EQ(zredGetAngle(nullptr, L"\nA: ", number_), RTNORM);
    EXPECT_DOUBLE_EQ(number_, std::numbers::pi);
}

TEST_F(Get, TransparentCommandRunsAndTheQuestionIsAskedAgain) {
    int runs = 0;
    test_.addCommand(
        L"LOOK", [&] { return ++runs, RTNORM; }, quor::ed::kTransparent);
    type({L"'look", L"3"});
    zredInitGet(RSG_NONEG, nullptr);
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTNORM);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(number_, 3);
}

TEST_F(Get, ATransparentCommandMayAskWithAnyNumberOfKeywordLists) {
    test_.addCommand(
        L"LOOK",
        [&] {
            for (int list = 0; list < 300; ++list) {
                zredInitGet(0, (L"Word" + std::to_wstring(list)).c_str());
                (void)zredGetKword(L"\nW: ", text_);
            }
            return RTNORM;
        },
        quor::ed::kTransparent);
    type({L"'LOOK"});
    for (int answer = 0; answer < 300; ++answer)
        type({L""});
    type({L"B"});

    zredInitGet(0, L"Alpha Beta");

    EXPECT_EQ(zredGetKword(L"\nWhich: ", text_), RTNORM);
    EXPECT_EQ(text_, L"Beta");
}

TEST_F(Get, CommandThatIsNotTransparentIsRefused) {
    int runs = 0;
    test_.addCommand(L"DRAW", [&] { return ++runs, RTNORM; });
    type({L"'DRAW", L"3"});
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTNORM);
    EXPECT_EQ(runs, 0);
    EXPECT_TRUE(shows(L"命令 DRAW 不能透明使用。"));
}

TEST_F(Get, ApostropheIsTextForAString) {
    int runs = 0;
    test_.addCommand(
        L"LOOK", [&] { return ++runs, RTNORM; }, quor::ed::kTransparent);
    type({L"'t Hooft", L"'LOOK"});
    EXPECT_EQ(zredGetString(1, L"\nName: ", text_), RTNORM);
    EXPECT_EQ(text_, L"'t Hooft");
    EXPECT_EQ(zredGetString(0, L"\nName: ", text_), RTNORM);
    EXPECT_EQ(text_, L"'LOOK");
    EXPECT_EQ(runs, 0);
}

class BrokenInput : public Get {
protected:
    BrokenInput() { test_.front().breakInput(); }
};

TEST_F(BrokenInput, IsAnErrorForATextThatStaysAsItWas) {
    EXPECT_EQ(zredGetString(1, L"\nName: ", text_), RTERROR);
    EXPECT_EQ(text_, L"before");
}

TEST_F(BrokenInput, IsAnErrorForAKeyword) {
    zredInitGet(0, L"eXit _eXit");
    EXPECT_EQ(zredGetKword(L"\nOption: ", text_), RTERROR);
}

TEST_F(BrokenInput, IsAnErrorForNumbers) {
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTERROR);
    EXPECT_EQ(number_, -7);
}

TEST_F(BrokenInput, IsAnErrorForWholeNumbers) { EXPECT_EQ(zredGetInt(L"\nN: ", whole_), RTERROR); }

TEST_F(BrokenInput, IsAnErrorForDistances) { EXPECT_EQ(zredGetDist(nullptr, L"\nD: ", number_), RTERROR); }

TEST_F(BrokenInput, IsAnErrorForAngles) { EXPECT_EQ(zredGetAngle(nullptr, L"\nA: ", number_), RTERROR); }

TEST_F(BrokenInput, IsAnErrorForPoints) { EXPECT_EQ(zredGetPoint(nullptr, L"\nP: ", point_), RTERROR); }

TEST_F(BrokenInput, IsAnErrorForSelections) {
    ZrDbObjectIdArray ids;
    EXPECT_EQ(zredSelect(nullptr, ids), RTERROR);
}

TEST_F(BrokenInput, EndsForTheQuestionsThatFollow) {
    type({L"1"});
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTERROR);
    EXPECT_EQ(zredGetReal(L"\nN: ", number_), RTCAN);
    EXPECT_EQ(asked(), 1U);
}

TEST_F(Get, EnglishRefusalsAreSpokenInEnglish) {
    quor::setLanguage(quor::Language::English);
    type({L"0", L"1"});
    zredInitGet(RSG_NOZERO | RSG_NONEG, nullptr);
    zredGetReal(L"\nN: ", number_);
    EXPECT_TRUE(shows(L"Value must be positive and nonzero."));
}

} // namespace
