#include "sdk/ed/modeless_operation.h"

#include "sdk/db/database.h"
#include "sdk/db/line.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using quor::test::TestSession;

namespace {

class Listener final : public ZrApDocumentReactor {
public:
    void modelessOperationWillStart(const ZrString& name) override { events.push_back(L"start " + name); }
    void modelessOperationEnded(const ZrString& name) override { events.push_back(L"end " + name); }
    std::vector<ZrString> events;
};

class ModelessOperation : public testing::Test {
protected:
    ModelessOperation() { zrapDocManager()->addReactor(&listener_); }
    ~ModelessOperation() override { zrapDocManager()->removeReactor(&listener_); }

    static ZrDbObjectId addLine() {
        auto line = std::make_unique<ZrDbLine>(ZrGePoint3d(0, 0, 0), ZrGePoint3d(0, 1, 0));
        const ZrDbObjectId id = RxCommand::postToDb(*line, nullptr, nullptr, true);
        (void)line.release(); // the drawing owns it now
        return id;
    }
    quor::DocumentManager& documents() { return test_.session().documents(); }
    quor::db::Journal& journal() { return test_.document().drawing().journal(); }

    TestSession test_;
    Listener listener_;
};

TEST_F(ModelessOperation, ChangesOfAnOperationAreOneStepOfUndoUnderItsName) {
    zrapModelessOperationStart(L"GLYPHS");
    const ZrDbObjectId first = addLine();
    const ZrDbObjectId second = addLine();
    zrapModelessOperationEnd(L"GLYPHS");

    EXPECT_EQ(journal().undo(), L"GLYPHS");

    EXPECT_TRUE(first.isErased());
    EXPECT_TRUE(second.isErased());
    EXPECT_EQ(journal().undo(), std::nullopt);
}

TEST_F(ModelessOperation, ListenersAreToldOfTheOutermostOnly) {
    zrapModelessOperationStart(L"OUTER");
    zrapModelessOperationStart(L"INNER");
    addLine();
    zrapModelessOperationEnd(L"INNER");
    addLine();
    EXPECT_EQ(listener_.events, (std::vector<ZrString>{L"start OUTER"}));
    zrapModelessOperationEnd(L"OUTER");

    EXPECT_EQ(listener_.events, (std::vector<ZrString>{L"start OUTER", L"end OUTER"}));
    EXPECT_EQ(journal().undoDepth(), 1U);
}

TEST_F(ModelessOperation, OperationThatChangedNothingLeavesNoStep) {
    zrapModelessOperationStart(L"NOTHING");
    zrapModelessOperationEnd(L"NOTHING");
    EXPECT_EQ(journal().undoDepth(), 0U);
    EXPECT_EQ(listener_.events, (std::vector<ZrString>{L"start NOTHING", L"end NOTHING"}));
}

TEST_F(ModelessOperation, NullIsAnEmptyName) {
    zrapModelessOperationStart(nullptr);
    addLine();
    zrapModelessOperationEnd(nullptr);
    EXPECT_EQ(journal().undo(), L"");
}

TEST_F(ModelessOperation, EndWithoutAStartDoesNothing) {
    zrapModelessOperationEnd(L"NOTHING");
    addLine();
    EXPECT_TRUE(listener_.events.empty());
    EXPECT_FALSE(journal().isOpen());
}

TEST_F(ModelessOperation, OperationJoinsTheGroupOfTheRunningCommand) {
    test_.addCommand(L"TWO", [] {
        addLine();
        zrapModelessOperationStart(L"INSIDE");
        addLine();
        zrapModelessOperationEnd(L"INSIDE");
        return RTNORM;
    });

    test_.run({L"TWO"});

    EXPECT_EQ(journal().undo(), L"TWO");
    EXPECT_EQ(journal().undoDepth(), 0U);
}

TEST_F(ModelessOperation, NothingHappensWithoutADrawing) {
    documents().closeAll();
    zrapModelessOperationStart(L"NOWHERE");
    documents().newDocument();
    addLine();
    zrapModelessOperationEnd(L"NOWHERE");

    EXPECT_TRUE(listener_.events.empty());
    EXPECT_FALSE(journal().isOpen());
    EXPECT_EQ(journal().undo(), L"");
}

TEST_F(ModelessOperation, DrawingMayBeClosedOnTheWay) {
    zrapModelessOperationStart(L"LAST");
    addLine();
    documents().closeAll();
    documents().newDocument();
    zrapModelessOperationEnd(L"LAST");

    EXPECT_FALSE(journal().isOpen());
    EXPECT_EQ(listener_.events, (std::vector<ZrString>{L"start LAST", L"end LAST"}));
}

TEST_F(ModelessOperation, GroupIsClosedInTheDrawingInWhichItWasOpened) {
    quor::db::Journal& first = journal();
    zrapModelessOperationStart(L"HERE");
    addLine();
    documents().newDocument();
    zrapModelessOperationEnd(L"HERE");

    EXPECT_FALSE(first.isOpen());
    EXPECT_FALSE(journal().isOpen());
    EXPECT_EQ(first.undoDepth(), 1U);
}

TEST_F(ModelessOperation, UpdatingTheDisplayHasTheFrontEndDrawAnew) {
    zrapRefreshGraphics(test_.document());
    EXPECT_EQ(test_.front().redraws(), 1);
    zredUpdateDisplay();
    EXPECT_EQ(test_.front().redraws(), 2);
}

TEST(ModelessOperationOutsideASession, DoesNothing) {
    zrapModelessOperationStart(L"NOWHERE");
    zrapModelessOperationEnd(L"NOWHERE");
    zredUpdateDisplay();
    EXPECT_EQ(zrapDocManager(), nullptr);
}

} // namespace
