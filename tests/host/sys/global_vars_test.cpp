#include "sdk/sys/global_vars.h"

#include <gtest/gtest.h>

TEST(GlobalVariables, NoneWithoutAHost) { EXPECT_EQ(ZrGlobalVarManager::instance(), nullptr); }

TEST(GlobalVariables, FirstRegistrationAnswersOkTheSecondThatItExists) {
    ZrGlobalVarManager variables;
    EXPECT_EQ(variables.reg(ZrGlobalVarManager::kShort, L"LAST"), ZrGlobalVarManager::kOk);
    EXPECT_EQ(variables.reg(ZrGlobalVarManager::kShort, L"LAST"), ZrGlobalVarManager::kExists);
}

TEST(GlobalVariables, WrongTypeOrNameIsNotRegistered) {
    ZrGlobalVarManager variables;
    EXPECT_EQ(variables.reg(0, L"A"), ZrGlobalVarManager::kError);
    EXPECT_EQ(variables.reg(5, L"A"), ZrGlobalVarManager::kError);
    EXPECT_EQ(variables.reg(2, L""), ZrGlobalVarManager::kError);
    EXPECT_EQ(variables.reg(2, nullptr), ZrGlobalVarManager::kError);
}

TEST(GlobalVariables, VariableHasNoValueUntilItIsSet) {
    ZrGlobalVarManager variables;
    short number = 3;
    variables.reg(ZrGlobalVarManager::kShort, L"LAST");
    EXPECT_EQ(variables.get(L"LAST", number), ZrGlobalVarManager::kNoValue);
    EXPECT_EQ(number, 3);
    EXPECT_EQ(variables.set(L"LAST", short{0}), ZrGlobalVarManager::kOk);
    EXPECT_EQ(variables.get(L"LAST", number), ZrGlobalVarManager::kOk);
    EXPECT_EQ(number, 0);
}

TEST(GlobalVariables, TextIsKept) {
    ZrGlobalVarManager variables;
    ZrString text;
    variables.reg(ZrGlobalVarManager::kString, L"KIND");
    EXPECT_EQ(variables.set(L"KIND", L"Freespot"), ZrGlobalVarManager::kOk);
    EXPECT_EQ(variables.get(L"KIND", text), ZrGlobalVarManager::kOk);
    EXPECT_EQ(text, L"Freespot");
}

TEST(GlobalVariables, UnregisteredVariableIsUnknown) {
    ZrGlobalVarManager variables;
    short number = 3;
    EXPECT_EQ(variables.get(L"LAST", number), ZrGlobalVarManager::kUnknown);
    EXPECT_EQ(variables.set(L"LAST", short{1}), ZrGlobalVarManager::kUnknown);
}

TEST(GlobalVariables, TypeIsNotChanged) {
    ZrGlobalVarManager variables;
    ZrString text;
    variables.reg(ZrGlobalVarManager::kShort, L"LAST");
    EXPECT_EQ(variables.set(L"LAST", L"1"), ZrGlobalVarManager::kWrongType);
    EXPECT_EQ(variables.get(L"LAST", text), ZrGlobalVarManager::kWrongType);
    EXPECT_EQ(variables.set(L"LAST", static_cast<const wchar_t*>(nullptr)), ZrGlobalVarManager::kError);
}
