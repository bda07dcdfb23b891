#include "sdk/ed/documents.h"

#include "sdk/db/database.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

using quor::test::TestSession;

namespace {

class Listener final : public ZrApDocumentReactor {
public:
    void documentCreated(ZrApDocument& document) override { events.push_back(L"created " + document.fileName()); }
    void documentBecameCurrent(ZrApDocument* document) override {
        events.push_back(document != nullptr ? L"current " + document->fileName() : L"none current");
    }
    void documentToBeDeactivated(ZrApDocument& document) override {
        const bool isStillCurrent = zrapDocManager()->curDocument() == &document;
        events.push_back((isStillCurrent ? L"leaving " : L"left ") + document.fileName());
    }
    void documentToBeDestroyed(ZrApDocument& document) override { events.push_back(L"closing " + document.fileName()); }
    std::vector<ZrString> events;
};

class Documents : public testing::Test {
protected:
    quor::DocumentManager& manager() { return test_.session().documents(); }
    TestSession test_;
};

TEST_F(Documents, NewDrawingsAreNumberedAndBecomeCurrent) {
    EXPECT_EQ(manager().current()->fileName(), L"Drawing1");
    EXPECT_EQ(manager().newDocument().fileName(), L"Drawing2");
    EXPECT_EQ(zrapDocManager()->curDocument()->fileName(), L"Drawing2");
    EXPECT_EQ(zrapDocManager()->documents().size(), 2U);
}

TEST_F(Documents, NumberOfAClosedDrawingIsNotUsedAgain) {
    manager().close(*manager().current());
    EXPECT_EQ(manager().newDocument().fileName(), L"Drawing2");
}

TEST_F(Documents, ListenersHearOfEachInOrder) {
    Listener listener;
    manager().addReactor(&listener);
    manager().addReactor(&listener);
    quor::Document& second = manager().newDocument();
    manager().close(second);
    manager().setCurrent(manager().current());
    manager().removeReactor(&listener);
    EXPECT_EQ(listener.events, (std::vector<ZrString>{L"leaving Drawing1", L"created Drawing2", L"current Drawing2",
                                                      L"leaving Drawing2", L"closing Drawing2", L"current Drawing1"}));
}

TEST_F(Documents, DocumentThatIsSwitchedFromIsLeftFirst) {
    quor::Document& first = *manager().current();
    manager().newDocument();
    Listener listener;
    manager().addReactor(&listener);
    manager().setCurrent(&first);
    manager().setCurrent(&first);
    manager().removeReactor(&listener);
    EXPECT_EQ(listener.events, (std::vector<ZrString>{L"leaving Drawing2", L"current Drawing1"}));
}

TEST_F(Documents, DocumentThatIsNotCurrentIsClosedWithoutBeingLeft) {
    quor::Document& first = *manager().current();
    manager().newDocument();
    Listener listener;
    manager().addReactor(&listener);
    manager().close(first);
    manager().removeReactor(&listener);
    EXPECT_EQ(listener.events, (std::vector<ZrString>{L"closing Drawing1"}));
}

TEST_F(Documents, LastDocumentLeavesNoneCurrent) {
    Listener listener;
    manager().addReactor(&listener);
    manager().closeAll();
    manager().removeReactor(&listener);
    EXPECT_EQ(listener.events, (std::vector<ZrString>{L"leaving Drawing1", L"closing Drawing1", L"none current"}));
}

TEST_F(Documents, WorkingDatabaseIsTheCurrentDrawings) {
    EXPECT_EQ(zrdbWorkingDatabase(), manager().current()->database());
    manager().close(*manager().current());
    EXPECT_EQ(zrdbWorkingDatabase(), nullptr);
    EXPECT_EQ(zrapDocManager()->curDocument(), nullptr);
}

TEST_F(Documents, DocumentIsLockedOnce) {
    ZrApDocument& document = *zrapDocManager()->curDocument();
    EXPECT_EQ(manager().unlockDocument(document), Quor::eLockViolation);
    EXPECT_EQ(manager().lockDocument(document), Quor::eOk);
    EXPECT_EQ(manager().lockDocument(document), Quor::eLockViolation);
    EXPECT_EQ(manager().unlockDocument(document), Quor::eOk);
    EXPECT_EQ(manager().lockDocument(document), Quor::eOk);
}

TEST_F(Documents, DocumentIsQuiescentUnlessACommandRuns) {
    bool during = true;
    test_.addCommand(L"LOOK", [&] {
        during = zrapDocManager()->curDocument()->isQuiescent();
        return 5100;
    });
    test_.run({L"LOOK"});
    EXPECT_FALSE(during);
    EXPECT_TRUE(zrapDocManager()->curDocument()->isQuiescent());
}

TEST(Session, NothingIsOpenOutsideOfOne) {
    EXPECT_FALSE(quor::Session::exists());
    EXPECT_EQ(zrapDocManager(), nullptr);
    EXPECT_EQ(zrdbWorkingDatabase(), nullptr);
}

} // namespace
