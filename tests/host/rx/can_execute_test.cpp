// The command library asks a command whether it can be used before it executes it.
#include "sdk/rx/command.h"
#include "sdk/rx/command_manager.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quor {
namespace {

ZrString story; // what happened to the command, a letter each: asked, executed, deleted

class AskedCommand : public RxCommand {
public:
    ~AskedCommand() override { story += L'd'; }
    const wchar_t* typeName() const override { return L"ASKEDCMD"; }
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    bool filtersPoints() const override { return false; }
    bool canExecute() override {
        story += L'a';
        return true;
    }
    int execute() override {
        story += L'e';
        return RTNORM;
    }
};

class RefusedCommand : public AskedCommand {
public:
    bool canExecute() override {
        story += L'a';
        return false;
    }
};

class BrokenCommand : public AskedCommand {
public:
    bool canExecute() override { throw std::runtime_error("units broke"); }
};

class CanExecute : public testing::Test {
protected:
    CanExecute() {
        story.clear();
        RxCmdManager::initInstance();
    }
    ~CanExecute() override { RxCmdManager::releaseInstance(); }

    template <class Command>
    ed::Verdict run() {
        const auto make = []() -> RxCommand* { return new Command; };
        const auto enter = [] { RxCmdManager::cmdEntryPoint([]() -> RxCommand* { return new Command; }); };
        RxCmdManager::instancePtr()->registerCmd2(make, enter, L"TEST_GROUP", L"ASKED", L"ASKED", 0);
        return session_.run({L"ASKED"});
    }

    test::TestSession session_;
};

TEST_F(CanExecute, IsAskedOnceBeforeTheCommandIsExecuted) {
    const ed::Verdict verdict = run<AskedCommand>();

    EXPECT_EQ(verdict.result, RTNORM);
    EXPECT_EQ(story, L"aed");
}

TEST_F(CanExecute, ThatAnswersFalseEndsTheCommandUnexecuted) {
    const ed::Verdict verdict = run<RefusedCommand>();

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_EQ(story, L"ad");
}

TEST_F(CanExecute, ThatThrowsEndsTheCommandUnexecutedWithItsReason) {
    const ed::Verdict verdict = run<BrokenCommand>();

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_TRUE(session_.front().shows(L"units broke"));
    EXPECT_EQ(story, L"d");
}

} // namespace
} // namespace quor
