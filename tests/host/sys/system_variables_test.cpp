#include "host/sys/system_variables.h"

#include "host/sys/settings_store.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/system.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using quor::sys::SetResult;
using quor::sys::SystemVariables;
using quor::sys::VariableValue;
using quor::test::TestSession;

namespace {

std::vector<const wchar_t*> builtInNames() {
    std::vector<const wchar_t*> names;
    for (const quor::sys::VariableRow& row : quor::sys::variableRows())
        names.push_back(row.name);
    return names;
}

class Variables : public testing::Test {
protected:
    SystemVariables& variables() { return session_.session().variables(); }
    ZrString text(std::wstring_view name) { return variables().text(name).value_or(L"(none)"); }
    ZrString refusal(std::wstring_view name, std::wstring_view text) {
        return variables().refusal(name, variables().setFromText(name, text));
    }

    TestSession session_{{.language = L"en"}};
};

class VariablesWithoutDrawing : public testing::Test {
protected:
    SystemVariables& variables() { return session_.session().variables(); }

    TestSession session_{{.language = L"en", .newDrawing = false}};
};

} // namespace

class VariableOfANewDrawing : public testing::TestWithParam<const wchar_t*> {};

TEST_P(VariableOfANewDrawing, HasAValueOfItsType) {
    TestSession session;
    const SystemVariables& variables = session.session().variables();
    const auto value = variables.get(GetParam());
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->index(), static_cast<std::size_t>(variables.row(GetParam())->type));
}

INSTANTIATE_TEST_SUITE_P(All, VariableOfANewDrawing, testing::ValuesIn(builtInNames()));

TEST_F(Variables, NewDrawingHasTheUsualSettings) {
    EXPECT_EQ(variables().number(L"LIGHTINGUNITS"), 2);
    EXPECT_EQ(variables().number(L"DEFAULTLIGHTING"), 1);
    EXPECT_EQ(variables().number(L"TILEMODE"), 1);
    EXPECT_EQ(variables().number(L"CVPORT"), 2);
    EXPECT_EQ(variables().number(L"LUNITS"), 2);
    EXPECT_EQ(variables().number(L"LUPREC"), 4);
    EXPECT_EQ(variables().number(L"INSUNITS"), 4);
    EXPECT_EQ(text(L"CLAYER"), L"0");
    EXPECT_EQ(text(L"DWGVERSION"), L"AC1032");
    EXPECT_EQ(text(L"WORLDUCS"), L"1");
}

TEST_F(Variables, ViewportThatIsNotThereIsRefused) {
    EXPECT_EQ(variables().set(L"CVPORT", short{1}), SetResult::OutOfRange);
    EXPECT_EQ(variables().set(L"CVPORT", short{3}), SetResult::OutOfRange);
    EXPECT_EQ(variables().set(L"CVPORT", short{2}), SetResult::Ok);
}

TEST_F(Variables, NamesAreFoundWithoutRegardToCase) {
    EXPECT_EQ(variables().set(L"luprec", short{6}), SetResult::Ok);
    EXPECT_EQ(variables().number(L"LuPrec"), 6);
}

TEST_F(Variables, UnknownNameIsRefused) {
    EXPECT_FALSE(variables().get(L"LAMPS").has_value());
    EXPECT_EQ(variables().set(L"LAMPS", short{1}), SetResult::Unknown);
    EXPECT_EQ(refusal(L"lamps", L"1"), L"Unknown system variable \"LAMPS\". SETVAR ? lists all variables.");
}

TEST_F(Variables, NumberOutsideItsRangeIsRefusedWithTheRange) {
    EXPECT_EQ(refusal(L"LIGHTINGUNITS", L"3"), L"System variable LIGHTINGUNITS requires an integer from 0 to 2.");
    EXPECT_EQ(variables().setFromText(L"LIGHTINGUNITS", L"-1"), SetResult::OutOfRange);
    EXPECT_EQ(variables().setFromText(L"LIGHTINGUNITS", L"70000"), SetResult::OutOfRange);
    EXPECT_EQ(variables().number(L"LIGHTINGUNITS"), 2);
    EXPECT_EQ(variables().setFromText(L"LIGHTINGUNITS", L"0"), SetResult::Ok);
    EXPECT_EQ(variables().number(L"LIGHTINGUNITS"), 0);
}

TEST_F(Variables, TextThatIsNoNumberIsOfTheWrongType) {
    EXPECT_EQ(variables().setFromText(L"LUPREC", L"4.5"), SetResult::WrongType);
    EXPECT_EQ(variables().setFromText(L"LUPREC", L""), SetResult::WrongType);
    EXPECT_EQ(variables().setFromText(L"LTSCALE", L"nan"), SetResult::WrongType);
    EXPECT_EQ(variables().setFromText(L"LASTPOINT", L"1"), SetResult::WrongType);
    EXPECT_EQ(variables().set(L"LUPREC", ZrString(L"4")), SetResult::WrongType);
}

TEST_F(Variables, ReadOnlyVariableIsNotSet) {
    EXPECT_EQ(variables().set(L"DWGNAME", ZrString(L"x")), SetResult::ReadOnly);
    EXPECT_EQ(refusal(L"DBMOD", L"0"), L"System variable DBMOD is read-only.");
}

TEST_F(Variables, RealVariableTakesAWholeNumber) {
    EXPECT_EQ(variables().set(L"LTSCALE", short{3}), SetResult::Ok);
    EXPECT_EQ(text(L"LTSCALE"), L"3.0000");
}

TEST_F(Variables, NumberThatIsNotFiniteIsRefused) {
    EXPECT_EQ(variables().set(L"ELEVATION", std::nan("")), SetResult::OutOfRange);
    EXPECT_EQ(variables().set(L"LIMMAX", ZrGePoint3d(1, std::numeric_limits<double>::infinity(), 0)),
              SetResult::OutOfRange);
}

TEST_F(Variables, BaseAngleIsTypedInDegreesAndKeptInRadians) {
    EXPECT_EQ(variables().setFromText(L"ANGBASE", L"90"), SetResult::Ok);
    EXPECT_NEAR(std::get<double>(*variables().get(L"ANGBASE")), std::numbers::pi / 2, 1e-12);
    EXPECT_NEAR(std::get<double>(*session_.document().drawing().header(L"$ANGBASE")), 90, 1e-9);
    EXPECT_EQ(text(L"ANGBASE"), L"90");
}

TEST_F(Variables, PointIsTypedWithCommas) {
    EXPECT_EQ(variables().setFromText(L"LASTPOINT", L"1,2,3"), SetResult::Ok);
    EXPECT_EQ(variables().setFromText(L"LASTPOINT", L"@1,0,0"), SetResult::Ok);
    EXPECT_EQ(text(L"LASTPOINT"), L"2.0000,2.0000,3.0000");
}

TEST_F(Variables, CurrentLayerHasToExistAndNotToBeHidden) {
    session_.document().drawing().makeLayer(L"Lamps");
    session_.document().drawing().makeLayer(L"*Secret");
    EXPECT_EQ(variables().setFromText(L"CLAYER", L"lamps"), SetResult::Ok);
    EXPECT_EQ(text(L"CLAYER"), L"Lamps");
    EXPECT_EQ(variables().setFromText(L"CLAYER", L"absent"), SetResult::NoSuchLayer);
    EXPECT_EQ(variables().setFromText(L"CLAYER", L"Secret"), SetResult::NoSuchLayer);
    EXPECT_EQ(text(L"CLAYER"), L"Lamps");
}

TEST_F(Variables, LanguageIsOneOfTwoOrThatOfTheEnvironment) {
    EXPECT_EQ(text(L"LANGUAGE"), L"en");
    EXPECT_EQ(refusal(L"LANGUAGE", L"fr"), L"System variable LANGUAGE requires one of the following: zh/en/auto.");
    EXPECT_EQ(variables().setFromText(L"LANGUAGE", L"zh"), SetResult::Ok);
    EXPECT_EQ(text(L"LANGUAGE"), L"zh");
    EXPECT_EQ(variables().setFromText(L"LANGUAGE", L"auto"), SetResult::Ok);
    EXPECT_EQ(text(L"LANGUAGE"), L"auto");
}

TEST_F(Variables, UserVariableIsKeptInTheSettings) {
    EXPECT_EQ(variables().set(L"COLORTHEME", short{1}), SetResult::Ok);
    EXPECT_EQ(session_.session().settings().getInt(quor::sys::kUserVariables, L"COLORTHEME"), 1);
    EXPECT_EQ(variables().set(L"SUPPORTPATH", ZrString(L"/灯")), SetResult::Ok);
    EXPECT_EQ(text(L"SUPPORTPATH"), L"/灯");
}

TEST_F(Variables, UserVariableThatTheSettingsSpoilHasItsInitialValue) {
    ASSERT_FALSE(session_.session().settings().setInt(quor::sys::kUserVariables, L"COLORTHEME", 9).has_value());
    EXPECT_EQ(variables().number(L"COLORTHEME"), 2);
}

TEST_F(Variables, ChangeOfADrawingVariableIsUndone) {
    auto& journal = session_.document().drawing().journal();
    journal.begin(L"TEST");
    EXPECT_EQ(variables().set(L"LUPREC", short{2}), SetResult::Ok);
    EXPECT_EQ(variables().set(L"LIGHTINGUNITS", short{0}), SetResult::Ok);
    EXPECT_EQ(variables().set(L"DEFAULTLIGHTING", short{0}), SetResult::Ok);
    journal.end();
    ASSERT_TRUE(journal.undo().has_value());
    EXPECT_EQ(variables().number(L"LUPREC"), 4);
    EXPECT_EQ(variables().number(L"LIGHTINGUNITS"), 2);
    EXPECT_EQ(variables().number(L"DEFAULTLIGHTING"), 1);
}

TEST_F(Variables, ModuleAddsAReadOnlyVariable) {
    auto& service = CZwSystem::instance().systemVariables();
    ASSERT_TRUE(service.registerVariable(L"LampState", [] { return short{7}; }));
    EXPECT_EQ(variables().number(L"LAMPSTATE"), 7);
    EXPECT_EQ(variables().set(L"LAMPSTATE", short{1}), SetResult::ReadOnly);
    EXPECT_FALSE(service.registerVariable(L"LAMPSTATE", [] { return short{8}; }));
    EXPECT_TRUE(service.unregisterVariable(L"lampstate"));
    EXPECT_FALSE(service.unregisterVariable(L"lampstate"));
    EXPECT_FALSE(variables().has(L"LAMPSTATE"));
}

TEST_F(Variables, ModuleCannotTakeTheNameOfABuiltInVariable) {
    EXPECT_FALSE(CZwSystem::instance().systemVariables().registerVariable(L"lunits", [] { return short{1}; }));
}

TEST_F(Variables, NamesAreListedInOrder) {
    variables().registerVariable(L"MIDDLE", [] { return short{0}; });
    const auto names = variables().names();
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(names.size(), quor::sys::variableRows().size() + 1);
}

TEST_F(Variables, ModuleReadsAndSetsWholeNumbers) {
    short value = -5;
    EXPECT_TRUE(zwutads::getVar(L"LIGHTINGUNITS", value));
    EXPECT_EQ(value, 2);
    EXPECT_FALSE(zwutads::getVar(L"CLAYER", value));
    EXPECT_FALSE(zwutads::getVar(L"ABSENT", value));
    EXPECT_EQ(value, 2);
    EXPECT_TRUE(zwutads::setVar(L"DEFAULTLIGHTING", 0));
    EXPECT_FALSE(zwutads::setVar(L"DEFAULTLIGHTING", 2));
    EXPECT_EQ(variables().number(L"DEFAULTLIGHTING"), 0);
}

// Writes down the names of the variables that are set.
class ToldVariables : public Variables {
protected:
    std::vector<ZrString> told_;
    int number_ = variables().addListener([this](const ZrString& name) { told_.push_back(name); });
};

TEST_F(ToldVariables, AreThoseThatWereSetWhereverTheyLive) {
    variables().set(L"lunits", short{4});
    variables().set(L"LTSCALE", short{2});
    variables().setFromText(L"LIGHTINGUNITS", L"0");
    variables().set(L"DEFAULTLIGHTING", short{0});
    variables().set(L"SUPPORTPATH", ZrString(L"/lamps"));
    variables().set(L"CVPORT", short{2});
    EXPECT_EQ(told_, (std::vector<ZrString>{L"LUNITS", L"LTSCALE", L"LIGHTINGUNITS", L"DEFAULTLIGHTING", L"SUPPORTPATH",
                                            L"CVPORT"}));
}

TEST_F(ToldVariables, AreNoneThatWereRefused) {
    variables().set(L"LUNITS", short{99});
    variables().set(L"LUNITS", ZrString(L"four"));
    variables().set(L"DWGNAME", ZrString(L"other"));
    variables().set(L"ABSENT", short{1});
    variables().setFromText(L"LUNITS", L"four");
    EXPECT_TRUE(told_.empty());
}

TEST_F(ToldVariables, AreOnesWhoseValueCannotBeKeptToo) {
    std::filesystem::create_directory(session_.folder() / "settings.ini");
    EXPECT_EQ(variables().set(L"SUPPORTPATH", ZrString(L"/lamps")), SetResult::NotSaved);
    EXPECT_EQ(told_, std::vector<ZrString>{L"SUPPORTPATH"});
}

TEST_F(ToldVariables, AreNoneAfterTheListenerIsTakenOff) {
    variables().removeListener(number_);
    variables().set(L"LUNITS", short{4});
    EXPECT_TRUE(told_.empty());
}

TEST_F(ToldVariables, ListenersMayTakeEachOtherOffWhileTheyAreTold) {
    int first = 0;
    first = variables().addListener([&](const ZrString&) { variables().removeListener(first); });
    const int second = variables().addListener([this](const ZrString&) { told_.push_back(L"second"); });
    variables().addListener([this, second](const ZrString&) { variables().removeListener(second); });
    variables().set(L"LUNITS", short{4});
    variables().set(L"LUNITS", short{2});
    EXPECT_EQ(told_, (std::vector<ZrString>{L"LUNITS", L"second", L"LUNITS"}));
}

TEST_F(ToldVariables, VariableOfAModuleIsToldAndKeepsWhatItsModuleGives) {
    short state = 0;
    variables().registerVariable(L"PaletteState", [] { return short{7}; });
    EXPECT_TRUE(zwutads::setVar(L"PALETTESTATE", 1));
    EXPECT_TRUE(zwutads::getVar(L"PALETTESTATE", state));
    EXPECT_EQ(state, 7);
    EXPECT_EQ(told_, std::vector<ZrString>{L"PALETTESTATE"});
}

TEST_F(ToldVariables, VariableOfAModuleStaysReadOnlyForPeople) {
    variables().registerVariable(L"PALETTESTATE", [] { return short{0}; });
    session_.run({L"SETVAR", L"palettestate"});
    EXPECT_TRUE(session_.front().shows(L"PALETTESTATE = 0 (read-only)"));
    EXPECT_EQ(variables().setFromText(L"PALETTESTATE", L"1"), SetResult::ReadOnly);
    EXPECT_TRUE(told_.empty());
}

TEST_F(ToldVariables, VariableOfAModuleThatIsGoneIsUnknown) {
    variables().registerVariable(L"PALETTESTATE", [] { return short{0}; });
    variables().unregisterVariable(L"PALETTESTATE");
    EXPECT_FALSE(zwutads::setVar(L"PALETTESTATE", 1));
    EXPECT_TRUE(told_.empty());
}

TEST_F(Variables, FailureIsToldUnlessItIsToBeQuiet) {
    EXPECT_FALSE(zwutads::setVar(L"DEFAULTLIGHTING", 2, true));
    EXPECT_EQ(session_.front().screen(), L"");
    EXPECT_FALSE(zwutads::setVar(L"DEFAULTLIGHTING", 2, false));
    EXPECT_TRUE(session_.front().shows(L"from 0 to 1"));
}

TEST_F(Variables, DialogOptionsAreKeptForTheUser) {
    int value = 42;
    EXPECT_FALSE(zwutads::GetValueFromReg(L"allowCurSelectDialog", value));
    EXPECT_EQ(value, 42);
    EXPECT_TRUE(zwutads::SetValueFromReg(L"allowCurSelectDialog", 1));
    EXPECT_TRUE(zwutads::GetValueFromReg(L"allowCurSelectDialog", value));
    EXPECT_EQ(value, 1);
}

TEST_F(VariablesWithoutDrawing, VariablesOfADrawingHaveNoValue) {
    EXPECT_FALSE(variables().get(L"LUNITS").has_value());
    EXPECT_EQ(variables().set(L"LUNITS", short{2}), SetResult::NoDrawing);
    EXPECT_EQ(variables().number(L"TILEMODE", 9), 9);
}

TEST_F(VariablesWithoutDrawing, VariablesOfTheProcessHave) {
    EXPECT_EQ(variables().number(L"CMDECHO"), 1);
    EXPECT_EQ(variables().set(L"CMDECHO", short{0}), SetResult::Ok);
    EXPECT_EQ(variables().number(L"CMDECHO"), 0);
    EXPECT_TRUE(variables().get(L"QUORVERSION").has_value());
}
