#include "host/ed/command_processor.h"

#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/sys/utf8.h"
#include "sdk/db/database.h"
#include "sdk/ed/get.h"
#include "sdk/ed/macro.h"
#include "sdk/ed/selection.h"
#include "sdk/ui/window.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace quor;
using namespace quor::ed;
using quor::test::TestSession;

namespace {

class Listener final : public ZrApDocumentReactor {
public:
    void commandWillStart(const ZrString& name) override { events.push_back(L"start " + name); }
    void commandEnded(const ZrString& name) override { events.push_back(L"end " + name); }
    void commandCancelled(const ZrString& name) override { events.push_back(L"cancel " + name); }
    std::vector<ZrString> events;
};

class Processor : public testing::Test {
protected:
    Processor() {
        test_.addCommand(L"OK", [this] { return ++runs_, RTNORM; });
        test_.addCommand(L"BREAK", [] { return RTERROR; });
        test_.addCommand(L"THROW", [this]() -> int {
            makeLayer(L"made");
            throw std::runtime_error("no luck");
        });
        test_.addCommand(L"LAYERS", [this] {
            makeLayer(L"one");
            makeLayer(L"two");
            return RTNORM;
        });
        test_.addCommand(L"ASK", [this] { return zredGetReal(L"\n数: ", number_); });
        test_.addCommand(L"WHO", [this] {
            calledByProgram_ = processor().isCalledByProgram();
            return RTNORM;
        });
    }

    void makeLayer(const wchar_t* name) { test_.document().drawing().makeLayer(name); }
    CommandProcessor& processor() { return test_.session().processor(); }
    db::Journal& journal() { return test_.document().drawing().journal(); }

    TestSession test_;
    int runs_ = 0;
    double number_ = 0;
    bool calledByProgram_ = false;
};

TEST_F(Processor, CommandIsDoneOnRtnorm) { EXPECT_EQ(test_.run({L"ok"}).kind, Verdict::Kind::Done); }

TEST_F(Processor, CommandFailsOnAnyOtherCode) {
    const Verdict verdict = test_.run({L"BREAK"});
    EXPECT_EQ(verdict.kind, Verdict::Kind::Failed);
    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_TRUE(verdict.isFailure());
}

TEST_F(Processor, ReportedResultCountsMoreThanTheReturnedOne) {
    test_.addCommand(L"MODULE", [this] {
        processor().reportResult(-1);
        return RTNORM;
    });
    EXPECT_EQ(test_.run({L"MODULE"}).result, -1);
}

TEST_F(Processor, EscapeCancelsTheCommand) {
    EXPECT_EQ(test_.run({L"ASK", L"^C"}).kind, Verdict::Kind::Cancelled);
    EXPECT_TRUE(test_.front().shows(L"*取消*"));
}

TEST_F(Processor, FailureAfterEscapeIsACancel) {
    test_.addCommand(L"PLACE", [this] {
        zredGetReal(L"\n数: ", number_);
        return RTERROR;
    });
    EXPECT_EQ(test_.run({L"PLACE", L"^C"}).kind, Verdict::Kind::Cancelled);
}

TEST_F(Processor, EscapeInAQuestionThatTheCommandSurvivesIsNoCancel) {
    test_.addCommand(L"MENU", [this] {
        zredGetReal(L"\n数: ", number_);
        return RTNORM;
    });
    EXPECT_EQ(test_.run({L"MENU", L"^C"}).kind, Verdict::Kind::Done);
}

TEST_F(Processor, EndOfInputInACommandIsAFailure) {
    const Verdict verdict = test_.run({L"ASK"});
    EXPECT_EQ(verdict.kind, Verdict::Kind::EndOfInput);
    EXPECT_TRUE(verdict.isFailure());
}

TEST_F(Processor, UnknownCommandIsNamedWithAdvice) {
    EXPECT_EQ(test_.run({L"FROBNICATE"}).kind, Verdict::Kind::Unknown);
    EXPECT_TRUE(test_.front().shows(L"未知命令“FROBNICATE”。输入 HELP"));
}

TEST_F(Processor, PercentSignsInAnUnknownCommandAreText) {
    test_.run({L"%s%d%n"});
    EXPECT_TRUE(test_.front().shows(L"未知命令“%s%d%n”。"));
}

TEST_F(Processor, RestOfALineWithAnUnknownCommandIsDropped) {
    test_.run({L"FROBNICATE OK"});
    EXPECT_EQ(runs_, 0);
}

TEST_F(Processor, EnterRepeatsTheLastCommandAndSaysWhich) {
    test_.run({L"ok", L""});
    EXPECT_EQ(runs_, 2);
    EXPECT_EQ(test_.front().screen(), L"命令: ok\n命令: \nOK\n命令: \n");
}

TEST_F(Processor, EnterWithoutACommandBeforeDoesNothing) {
    EXPECT_EQ(test_.run({L""}).kind, Verdict::Kind::Done);
    EXPECT_EQ(runs_, 0);
}

TEST_F(Processor, CommandThatIsNotToBeRepeatedIsNot) {
    int others = 0;
    test_.addCommand(
        L"ONCE", [&] { return ++others, RTNORM; }, kNoRepeat);
    test_.run({L"OK", L"ONCE", L""});
    EXPECT_EQ(others, 1);
    EXPECT_EQ(runs_, 2);
}

TEST_F(Processor, CommandIsOneUndoGroup) {
    const std::size_t before = journal().undoDepth();
    test_.run({L"LAYERS"});
    EXPECT_EQ(journal().undoDepth(), before + 1);
    EXPECT_EQ(journal().undo(), L"LAYERS");
}

TEST_F(Processor, ExceptionTakesBackWhatTheCommandDid) {
    const std::size_t layers = test_.document().drawing().layerIds().size();
    const Verdict verdict = test_.run({L"THROW"});
    EXPECT_EQ(verdict.kind, Verdict::Kind::Failed);
    EXPECT_EQ(test_.document().drawing().layerIds().size(), layers);
    EXPECT_FALSE(journal().isOpen());
    EXPECT_TRUE(test_.front().shows(L"命令 THROW 因内部错误中止，其更改已撤消: no luck"));
    EXPECT_FALSE(processor().isRunning());
}

TEST_F(Processor, ExceptionInAnInnerCommandTakesBackTheWholeOuterOne) {
    test_.addCommand(L"OUTER", [this] {
        makeLayer(L"outer");
        return processor().run(L"THROW", true).result;
    });
    const std::size_t layers = test_.document().drawing().layerIds().size();
    EXPECT_EQ(test_.run({L"OUTER"}).kind, Verdict::Kind::Failed);
    EXPECT_EQ(test_.document().drawing().layerIds().size(), layers);
    EXPECT_FALSE(processor().isRunning());
}

TEST_F(Processor, ListenersAreToldOfOutermostCommandsOnly) {
    Listener listener;
    test_.session().documents().addReactor(&listener);
    test_.addCommand(L"OUTER", [this] { return processor().run(L"OK", true).result; });
    test_.run({L"OUTER", L"ASK", L"^C"});
    test_.session().documents().removeReactor(&listener);
    EXPECT_EQ(listener.events, (std::vector<ZrString>{L"start OUTER", L"end OUTER", L"start ASK", L"cancel ASK"}));
}

TEST_F(Processor, TypedCommandIsNotCalledByAProgram) {
    test_.run({L"WHO"});
    EXPECT_FALSE(calledByProgram_);
}

TEST_F(Processor, ScriptsCommandIsCalledByAProgram) {
    test_.runScript("WHO\n");
    EXPECT_TRUE(calledByProgram_);
}

TEST_F(Processor, InnerCommandIsCalledByAProgram) {
    test_.addCommand(L"OUTER", [this] { return processor().run(L"WHO", false).result; });
    test_.run({L"OUTER"});
    EXPECT_TRUE(calledByProgram_);
}

TEST_F(Processor, MacroRunsWhenTheCommandHasEndedAndIsCalledByAProgram) {
    test_.addCommand(L"MENU", [this] {
        zredMenuMacro(L"^C^C_WHO");
        return zredGetReal(L"\n数: ", number_);
    });
    test_.run({L"MENU", L"5"});
    EXPECT_EQ(number_, 5);
    EXPECT_TRUE(calledByProgram_);
    EXPECT_EQ(test_.front().echoed(), std::vector<ZrString>{L"_WHO"});
}

TEST_F(Processor, QueuedMacrosRunInTheirOrder) {
    std::vector<ZrString> order;
    test_.addCommand(L"A", [&] { return order.push_back(L"A"), RTNORM; });
    test_.addCommand(L"B", [&] { return order.push_back(L"B"), RTNORM; });
    zredMenuMacro(L"A");
    zredMenuMacro(L"B");
    test_.run({});
    EXPECT_EQ(order, (std::vector<ZrString>{L"A", L"B"}));
}

TEST_F(Processor, MacroLeavesWhatWasTypedAheadToTheNextQuestions) {
    test_.session().input().typeAhead(L"ASK 5");
    EXPECT_EQ(zredMenuMacro(L"WHO"), RTNORM);
    test_.run({});
    EXPECT_TRUE(calledByProgram_);
    EXPECT_EQ(number_, 5);
}

TEST_F(Processor, MacroThatCancelsFirstDropsWhatWasTypedAhead) {
    test_.session().input().typeAhead(L"ASK 5");
    EXPECT_EQ(zredMenuMacro(L"WHO", true), RTNORM);
    test_.run({});
    EXPECT_TRUE(calledByProgram_);
    EXPECT_EQ(number_, 0);
}

TEST_F(Processor, MacroGivesTheKeyboardToTheDrawingWhereThatIsWished) {
    CWnd window;
    ASSERT_TRUE(window.Create({.style = WS_VISIBLE}));
    window.SetFocus();
    zredMenuMacro(L"WHO");
    EXPECT_TRUE(window.hasFocus());
    zredMenuMacro(L"WHO", false, true);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(Processor, NoMacroIsRefused) { EXPECT_EQ(zredMenuMacro(nullptr, true, true), RTERROR); }

TEST_F(Processor, PersonGoesOnWhereAMacroEnds) {
    zredMenuMacro(L"ASK");
    EXPECT_EQ(test_.run({L"8"}).kind, Verdict::Kind::Done);
    EXPECT_EQ(number_, 8);
}

TEST_F(Processor, ScriptAnswersAreEchoedLikeTypedOnes) {
    test_.runScript("ASK 5\n");
    EXPECT_EQ(test_.front().screen(), L"命令: ASK\n数: 5\n");
}

TEST_F(Processor, EndOfAScriptIsEscapeForTheCommandThatAsks) {
    test_.front().type(L"6");
    test_.runScript("ASK\n");
    EXPECT_EQ(number_, 0);
    EXPECT_EQ(test_.front().linesLeft(), 1U);
}

TEST_F(Processor, ScriptStopsAtTheFirstFailureAndSaysWhere) {
    test_.session().input().push(std::make_unique<ScriptSource>("; a test\nOK\nBREAK\nOK\n", L"lights.scr"));
    const ScriptOutcome outcome = runSources(test_.session(), false);
    ASSERT_TRUE(outcome.first);
    EXPECT_EQ(outcome.first->verdict.command, L"BREAK");
    EXPECT_EQ(outcome.first->origin.text(), L"lights.scr，第 3 行");
    EXPECT_EQ(outcome.commands, 2U);
    EXPECT_EQ(runs_, 1);
    EXPECT_TRUE(test_.session().input().empty());
}

TEST_F(Processor, ScriptThatKeepsGoingCountsItsFailures) {
    test_.session().input().push(std::make_unique<ScriptSource>("BREAK\nNONE\nOK\n", L"x.scr"));
    const ScriptOutcome outcome = runSources(test_.session(), true);
    EXPECT_EQ(outcome.failures, 2U);
    EXPECT_EQ(outcome.first->origin.line, 1U);
    EXPECT_EQ(runs_, 1);
}

TEST_F(Processor, CancelledCommandDoesNotStopAScript) {
    test_.session().input().push(std::make_unique<ScriptSource>("ASK ^C\nOK\n"));
    EXPECT_FALSE(runSources(test_.session(), false).first);
    EXPECT_EQ(runs_, 1);
}

TEST_F(Processor, ScriptStartedByAScriptRunsFirst) {
    std::vector<ZrString> order;
    test_.addCommand(L"NOTE", [&] {
        ZrString text;
        zredGetString(0, L"\n?: ", text);
        return order.push_back(text), RTNORM;
    });
    test_.addCommand(L"INNER", [this] {
        test_.session().input().push(std::make_unique<ScriptSource>("NOTE inner\n"));
        return RTNORM;
    });
    test_.runScript("NOTE one\nINNER\nNOTE two\n");
    EXPECT_EQ(order, (std::vector<ZrString>{L"one", L"inner", L"two"}));
}

TEST_F(Processor, BlankAtTheEndOfATypedLineIsAnEnterOfItsOwn) {
    test_.run({L"LINE 0,0 1,1 ", L"OK"});
    EXPECT_EQ(runs_, 1);
    EXPECT_EQ(test_.front().asked(), (std::vector<ZrString>{L"\n命令: ", L"\n命令: ", L"\n命令: "}));
}

TEST_F(Processor, TypedLineWithoutABlankAtItsEndGivesNoFurtherEnter) {
    test_.run({L"ASK 5", L"OK"});
    EXPECT_EQ(number_, 5);
    EXPECT_EQ(runs_, 1);
}

TEST_F(Processor, TypedBytesThatAreNoTextAreRefusedAndAskedAgain) {
    test_.run({ZrString(L"ASK"), fromUtf8("5\xC0"), ZrString(L"6"), fromUtf8("O\xC0K")});
    EXPECT_EQ(number_, 6);
    EXPECT_EQ(runs_, 0);
    EXPECT_EQ(test_.front().asked().size(), 5U);
    EXPECT_TRUE(test_.front().shows(L"数: 5\xDCC0\n输入的内容不是有效的 UTF-8 文字。"));
    EXPECT_TRUE(test_.front().shows(L"命令: O\xDCC0K\n输入的内容不是有效的 UTF-8 文字。"));
}

TEST_F(Processor, AZeroByteIsNoTextEither) {
    test_.run({ZrString(L"ASK"), ZrString(L"5\0", 2), ZrString(L"6"), ZrString(L"OK\0", 3)});
    EXPECT_EQ(number_, 6);
    EXPECT_EQ(runs_, 0);
    EXPECT_TRUE(test_.front().shows(L"输入的内容含有零字节"));
}

TEST_F(Processor, LongUnknownCommandIsShownShortened) {
    EXPECT_EQ(test_.run({ZrString(5000, L'x')}).command, ZrString(60, L'x') + L"…");
    EXPECT_TRUE(test_.front().shows(L"未知命令“" + ZrString(60, L'x') + L"…”"));
}

TEST_F(Processor, SystemVariableNameAsksForItsValueAndIsTheCommandsName) {
    EXPECT_EQ(test_.run({L"LUPREC", L"3"}).command, L"LUPREC");
    EXPECT_EQ(test_.front().echoed(), std::vector<ZrString>{});
}

TEST_F(Processor, SelectionIsClearedAfterACommandThatDidNotSetIt) {
    const ZrDbObjectId some = test_.document().database()->layerZeroId();
    zredSetImpliedSelection({some});
    test_.run({L"OK"});
    EXPECT_TRUE(zredImpliedSelection().empty());
}

TEST_F(Processor, SelectionThatTheCommandSetStays) {
    const ZrDbObjectId some = test_.document().database()->layerZeroId();
    test_.addCommand(L"PICK", [some] {
        zredSetImpliedSelection({some});
        return RTNORM;
    });
    test_.run({L"PICK"});
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{some});
}

TEST_F(Processor, CommandOfAModuleIsRefusedWithoutADrawing) {
    test_.session().documents().close(test_.document());
    EXPECT_EQ(test_.run({L"OK"}).kind, Verdict::Kind::Refused);
    EXPECT_EQ(runs_, 0);
    EXPECT_TRUE(test_.front().shows(L"没有打开的图形，无法执行 OK。"));
}

} // namespace
