#include "sdk/rx/command_manager.h"

#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using quor::ed::Verdict;
using quor::test::TestSession;

namespace {

int made = 0;
int deleted = 0;

class CountedCommand : public RxCommand {
public:
    CountedCommand() { ++made; }
    ~CountedCommand() override { ++deleted; }
    const wchar_t* typeName() const override { return L"COUNTEDCMD"; }
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    bool filtersPoints() const override { return false; }
};

class WorkingCommand : public CountedCommand {
    int execute() override { return RTNORM; }
};
class CancelledCommand : public CountedCommand {
    int execute() override { return RTCAN; }
};
class FailingCommand : public CountedCommand {
    int execute() override { return RTERROR; }
};
class ThrowingCommand : public CountedCommand {
    int execute() override { throw std::runtime_error("lamp broke"); }
};

template <class T>
RxCommand* make() {
    return new T;
}
template <class T>
void enter() {
    RxCmdManager::cmdEntryPoint(make<T>);
}
RxCommand* makeNone() { return nullptr; }
void enterNone() { RxCmdManager::cmdEntryPoint(makeNone); }

class CommandManager : public testing::Test {
protected:
    CommandManager() {
        made = deleted = 0;
        RxCmdManager::initInstance();
    }
    ~CommandManager() override { RxCmdManager::releaseInstance(); }

    template <class T>
    bool add(const wchar_t* name) {
        return RxCmdManager::instancePtr()->registerCmd2(make<T>, enter<T>, L"TEST_GROUP", name, name, 0);
    }

    TestSession session_;
};

} // namespace

TEST_F(CommandManager, CommandObjectIsMadeRunAndDeletedOnce) {
    ASSERT_TRUE(add<WorkingCommand>(L"WORK"));
    EXPECT_EQ(session_.run({L"work"}).kind, Verdict::Kind::Done);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(deleted, 1);
}

TEST_F(CommandManager, ResultOfTheObjectIsTheVerdict) {
    ASSERT_TRUE(add<FailingCommand>(L"FAIL1"));
    EXPECT_EQ(session_.run({L"FAIL1"}).kind, Verdict::Kind::Failed);
    EXPECT_EQ(session_.run({L"FAIL1"}).result, RTERROR);
}

// There are commands that always end with the code of Esc.
TEST_F(CommandManager, CancelThatNobodyAskedForIsNoneAndTellsNothing) {
    ASSERT_TRUE(add<CancelledCommand>(L"CANCEL1"));

    const Verdict verdict = session_.run({L"CANCEL1"});

    EXPECT_EQ(verdict.kind, Verdict::Kind::Done);
    EXPECT_EQ(verdict.result, RTCAN);
    EXPECT_FALSE(session_.front().shows(L"*取消*"));
}

TEST_F(CommandManager, ExceptionIsAFailureWithItsReason) {
    ASSERT_TRUE(add<ThrowingCommand>(L"THROW"));
    EXPECT_EQ(session_.run({L"THROW"}).kind, Verdict::Kind::Failed);
    EXPECT_TRUE(session_.front().shows(L"lamp broke"));
    EXPECT_EQ(deleted, 1);
}

TEST_F(CommandManager, FactoryThatMakesNothingFails) {
    ASSERT_TRUE(RxCmdManager::instancePtr()->registerCmd2(makeNone, enterNone, L"TEST_GROUP", L"NONE", nullptr, 0));
    EXPECT_EQ(session_.run({L"NONE"}).kind, Verdict::Kind::Failed);
}

TEST_F(CommandManager, SecondCommandOfAGroupAndNameIsRefused) {
    EXPECT_TRUE(add<WorkingCommand>(L"WORK"));
    EXPECT_FALSE(add<FailingCommand>(L"work"));
    EXPECT_EQ(session_.run({L"WORK"}).kind, Verdict::Kind::Done);
}

TEST_F(CommandManager, CommandWithoutNameOrEntryIsRefused) {
    EXPECT_FALSE(add<WorkingCommand>(L""));
    EXPECT_FALSE(RxCmdManager::instancePtr()->registerCmd2(makeNone, nullptr, L"TEST_GROUP", L"X", L"X", 0));
}

TEST_F(CommandManager, ReleaseTakesTheCommandsAndTheInstanceAway) {
    ASSERT_TRUE(add<WorkingCommand>(L"WORK"));
    RxCmdManager::releaseInstance();
    EXPECT_EQ(RxCmdManager::instancePtr(), nullptr);
    EXPECT_EQ(session_.run({L"WORK"}).kind, Verdict::Kind::Unknown);
}

TEST_F(CommandManager, CommandIsCalledByAnotherOnlyFromAScript) {
    static bool called = false;
    session_.addCommand(L"ASK", [] {
        called = RxCommand::isCalledByCommand();
        return RTNORM;
    });
    session_.run({L"ASK"});
    EXPECT_FALSE(called);
    session_.runScript("ASK\n");
    EXPECT_TRUE(called);
}

namespace {

struct LargeCommand : WorkingCommand {
    char more[4096] = {};
};

} // namespace

TEST(CommandMemory, TheMemoryOfTheLastCommandServesTheNext) {
    auto command = std::make_unique<WorkingCommand>();
    const void* const before = command.get();
    command.reset();

    command = std::make_unique<WorkingCommand>();

    EXPECT_EQ(command.get(), before);
}

TEST(CommandMemory, TwoCommandsAtATimeHaveMemoryOfTheirOwn) {
    const auto outer = std::make_unique<WorkingCommand>();
    const auto inner = std::make_unique<WorkingCommand>();
    EXPECT_NE(outer.get(), inner.get());
}

TEST(CommandMemory, ALargerCommandGetsEnough) {
    auto command = std::make_unique<WorkingCommand>();
    const void* const spare = command.get();
    command.reset();

    const auto large = std::make_unique<LargeCommand>();

    EXPECT_NE(static_cast<const void*>(large.get()), spare);
}
