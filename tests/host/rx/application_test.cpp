#include "sdk/rx/application.h"

#include "host/rx/lisp_functions.h"

#include <gtest/gtest.h>

namespace {

int answerSeven() { return 7; }
int answerEight() { return 8; }

// Keeps the messages that reached its handlers.
class RecordingApp : public ZrRxZpxApp {
public:
    std::vector<unsigned> heard;
    using ZrRxDbxApp::classMap_;
    using ZrRxZpxApp::lispFunctionMap_;

protected:
    Zr::AppRetCode hear(unsigned message) {
        heard.push_back(message);
        return Zr::kRetError;
    }
    Zr::AppRetCode onNullMsg(void*) override { return hear(0); }
    Zr::AppRetCode onInvokeSubrMsg(void*) override { return hear(5); }
    Zr::AppRetCode onEndMsg(void*) override { return hear(6); }
    Zr::AppRetCode onQuitMsg(void*) override { return hear(7); }
    Zr::AppRetCode onSaveMsg(void*) override { return hear(8); }
    Zr::AppRetCode onDependencyMsg(void*) override { return hear(9); }
    Zr::AppRetCode onNoDependencyMsg(void*) override { return hear(10); }
    Zr::AppRetCode onOleUnloadMsg(void*) override { return hear(11); }
    Zr::AppRetCode onPreQuitMsg(void*) override { return hear(12); }
    Zr::AppRetCode onInitDialogMsg(void*) override { return hear(13); }
    Zr::AppRetCode onEndDialogMsg(void*) override { return hear(14); }
    Zr::AppRetCode onSuspendMsg(void*) override { return hear(15); }
};

} // namespace

class Message : public testing::TestWithParam<unsigned> {};

TEST_P(Message, ReachesItsHandlerWhoseAnswerIsHandedBack) {
    RecordingApp app;
    EXPECT_EQ(app.zrrxEntryPoint(GetParam(), nullptr), Zr::kRetError);
    EXPECT_EQ(app.heard, std::vector{GetParam()});
}

INSTANTIATE_TEST_SUITE_P(All, Message, testing::Values(0U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 12U, 13U, 14U, 15U));

TEST(Application, MessageAbove15AnswersOkAndReachesNobody) {
    RecordingApp app;
    EXPECT_EQ(app.zrrxEntryPoint(16, nullptr), Zr::kRetOK);
    EXPECT_EQ(app.zrrxEntryPoint(4000000000U, nullptr), Zr::kRetOK);
    EXPECT_TRUE(app.heard.empty());
}

TEST(Application, ClassMapIsRegisteredOnInitialisationAndTakenOutOnUnload) {
    ZrRxClass lamp(L"ApplicationTestLamp", ZrRxObject::desc());
    RecordingApp app;
    app.classMap_ = {&lamp};
    EXPECT_EQ(app.zrrxEntryPoint(Zr::kInitAppMsg, nullptr), Zr::kRetOK);
    EXPECT_EQ(findZrRxClass(L"ApplicationTestLamp"), &lamp);
    EXPECT_EQ(app.zrrxEntryPoint(Zr::kUnloadAppMsg, nullptr), Zr::kRetOK);
    EXPECT_EQ(findZrRxClass(L"ApplicationTestLamp"), nullptr);
}

TEST(Application, InitialisationThatMeetsATakenClassNameLeavesNothingBehind) {
    ZrRxClass mine(L"ApplicationTestLamp", ZrRxObject::desc());
    ZrRxClass other(L"ApplicationTestLamp", ZrRxObject::desc());
    ASSERT_EQ(newZrRxClass(&other), Quor::eOk);
    RecordingApp app;
    ZrRxClass first(L"ApplicationTestShade", ZrRxObject::desc());
    app.classMap_ = {&first, &mine};
    EXPECT_EQ(app.zrrxEntryPoint(Zr::kInitAppMsg, nullptr), Zr::kRetError);
    EXPECT_EQ(findZrRxClass(L"ApplicationTestShade"), nullptr);
    EXPECT_EQ(findZrRxClass(L"ApplicationTestLamp"), &other);
    EXPECT_EQ(deleteZrRxClass(&other), Quor::eOk);
}

TEST(Application, LispFunctionsAreDefinedWhileADrawingOfTheModuleIsOpen) {
    RecordingApp app;
    app.lispFunctionMap_ = {{L"c:seven", answerSeven}};
    app.zrrxEntryPoint(Zr::kLoadDwgMsg, nullptr);
    app.zrrxEntryPoint(Zr::kLoadDwgMsg, nullptr);
    app.zrrxEntryPoint(Zr::kUnloadDwgMsg, nullptr);
    EXPECT_TRUE(quor::rx::lispFunctions().isDefined(L"C:SEVEN"));
    app.zrrxEntryPoint(Zr::kUnloadDwgMsg, nullptr);
    EXPECT_FALSE(quor::rx::lispFunctions().isDefined(L"c:seven"));
}

TEST(LispFunctions, NameOfAnotherFunctionIsRefused) {
    quor::rx::LispFunctions functions;
    EXPECT_TRUE(functions.define({L"f", answerSeven}));
    EXPECT_FALSE(functions.define({L"F", answerEight}));
    EXPECT_FALSE(functions.undefine({L"f", answerEight}));
    EXPECT_TRUE(functions.undefine({L"f", answerSeven}));
    EXPECT_FALSE(functions.undefine({L"f", answerSeven}));
}
