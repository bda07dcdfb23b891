#include "host/db/current_units.h"

#include "host/sys/system_variables.h"
#include "sdk/db/units.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using quor::test::TestSession;

namespace {

void set(TestSession& session, const wchar_t* name, short value) {
    ASSERT_EQ(session.session().variables().set(name, value), quor::sys::SetResult::Ok);
}

ZrString length(double value) {
    ZrString text;
    EXPECT_EQ(zrdbRToS(value, -1, -1, text), RTNORM);
    return text;
}

} // namespace

TEST(CurrentUnits, AreThoseOfANewDrawingWithoutASession) { EXPECT_EQ(length(1), L"1.0000"); }

TEST(CurrentUnits, FollowTheDrawing) {
    TestSession session;
    EXPECT_EQ(length(1.5), L"1.5000");
    set(session, L"LUPREC", 1);
    EXPECT_EQ(length(1.5), L"1.5");
    set(session, L"LUNITS", 5);
    EXPECT_EQ(length(1.5), L"1 1/2");
}

TEST(CurrentUnits, FollowUndo) {
    TestSession session;
    auto& journal = session.document().drawing().journal();
    journal.begin(L"TEST");
    set(session, L"LUPREC", 1);
    journal.end();
    EXPECT_EQ(length(1.5), L"1.5");
    journal.undo();
    EXPECT_EQ(length(1.5), L"1.5000");
}

TEST(CurrentUnits, AreTakenFromTheDocumentThatIsCurrent) {
    TestSession session;
    quor::Document& first = session.document();
    set(session, L"LUPREC", 2);
    session.session().documents().newDocument();
    EXPECT_EQ(length(1), L"1.0000");
    session.session().documents().setCurrent(&first);
    EXPECT_EQ(length(1), L"1.00");
}

TEST(CurrentUnits, OutliveTheDrawing) {
    {
        TestSession session;
        set(session, L"LUPREC", 2);
        EXPECT_EQ(length(1), L"1.00");
    }
    TestSession session;
    EXPECT_EQ(length(1), L"1.0000");
}

TEST(CurrentUnits, DamagedSettingCountsAsTheUsualOne) {
    TestSession session;
    session.document().drawing().setHeader(L"$LUNITS", 70, 99LL);
    EXPECT_EQ(quor::units::currentUnits().lengthFormat, quor::units::kDecimal);
}

TEST(Units, AngleIsGivenInRadiansAndShownInDegrees) {
    ZrString text;
    double radians = 0;
    EXPECT_EQ(zrdbAngToS(std::numbers::pi / 2, 0, 1, text), RTNORM);
    EXPECT_EQ(text, L"90.0");
    EXPECT_EQ(zrdbAngToF(L"45", 0, radians), RTNORM);
    EXPECT_NEAR(radians, std::numbers::pi / 4, 1e-12);
}

TEST(Units, RefusalLeavesTheResult) {
    ZrString text = L"before";
    double value = 7;
    EXPECT_EQ(zrdbRToS(std::nan(""), 2, 4, text), RTERROR);
    EXPECT_EQ(zrdbRToS(1, 9, 4, text), RTERROR);
    EXPECT_EQ(text, L"before");
    EXPECT_EQ(zrdbDisToF(L"12x", 2, value), RTERROR);
    EXPECT_EQ(zrdbDisToF(nullptr, 2, value), RTERROR);
    EXPECT_EQ(zrdbAngToF(nullptr, 0, value), RTERROR);
    EXPECT_EQ(value, 7);
}

TEST(Units, ConversionFactor) {
    double factor = 7;
    EXPECT_EQ(zredGetUnitsConversion(1, 4, factor), Quor::eOk);
    EXPECT_DOUBLE_EQ(factor, 25.4);
    EXPECT_EQ(zredGetUnitsConversion(1, 25, factor), Quor::eInvalidInput);
    EXPECT_DOUBLE_EQ(factor, 25.4);
}
