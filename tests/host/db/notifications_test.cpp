#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;
using testing::IsEmpty;

// Writes down what it is told.
struct Listener : ZrDbDatabaseReactor {
    void objectAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note("appended", object); }
    void objectUnAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note("unappended", object); }
    void objectReAppended(const ZrDbDatabase&, const ZrDbObject& object) override { note("reappended", object); }
    void objectOpenedForModify(const ZrDbDatabase&, const ZrDbObject& object) override { note("opened", object); }
    void objectModified(const ZrDbDatabase&, const ZrDbObject& object) override { note("modified", object); }
    void objectErased(const ZrDbDatabase&, const ZrDbObject& object, bool erased) override {
        note(erased ? "erased" : "unerased", object);
    }
    void headerSysVarChanged(const ZrDbDatabase&, const wchar_t* name) override {
        told.push_back("variable " + std::string(name, name + ZrString(name).size()));
    }
    void goodbye(const ZrDbDatabase&) override { told.emplace_back("goodbye"); }

    virtual void note(const char* what, const ZrDbObject& object) {
        told.emplace_back(what);
        writeEnabled = object.isWriteEnabled();
    }

    std::vector<std::string> told;
    bool writeEnabled = true;
};

struct Notifications : testing::Test {
    Notifications() { database->interface().addReactor(&listener); }
    ~Notifications() override { database.reset(); }

    Listener listener;
    std::unique_ptr<Database> database = Database::makeNew();
};

TEST_F(Notifications, AppendIsToldWhenTheObjectIsClosed) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database->interface().modelSpaceId(), ZrDb::kForWrite);
    ZrDbObjectId id;
    auto* line = new ZrDbLine;
    space->appendZrDbEntity(id, line);
    EXPECT_THAT(listener.told, IsEmpty());
    line->close();
    EXPECT_THAT(listener.told, ElementsAre("appended"));
    EXPECT_FALSE(listener.writeEnabled);
}

TEST_F(Notifications, ManyChangesOfOneOpeningAreToldOnce) {
    const ZrDbObjectId id = addLine(*database);
    listener.told.clear();
    ZrDbLine* line = nullptr;
    ASSERT_EQ(zrdbOpenObject(line, id, ZrDb::kForWrite), Quor::eOk);
    line->setStartPoint({7, 7, 7});
    line->setEndPoint({8, 8, 8});
    EXPECT_THAT(listener.told, ElementsAre("opened"));
    line->close();
    EXPECT_THAT(listener.told, ElementsAre("opened", "modified"));
}

TEST_F(Notifications, OpeningForWriteWithoutAChangeIsNotTold) {
    const ZrDbObjectId id = addLine(*database);
    listener.told.clear();
    { const ZrDbObjectPointer<ZrDbLine> line(id, ZrDb::kForWrite); }
    EXPECT_THAT(listener.told, IsEmpty());
}

TEST_F(Notifications, EraseAndUneraseAreToldAtClose) {
    const ZrDbObjectId id = addLine(*database);
    listener.told.clear();
    erase(id);
    erase(id, false);
    EXPECT_THAT(listener.told, ElementsAre("erased", "unerased"));
}

TEST_F(Notifications, EraseTakenBackInTheSameOpeningIsNotTold) {
    const ZrDbObjectId id = addLine(*database);
    listener.told.clear();
    ZrDbLine* line = nullptr;
    ASSERT_EQ(zrdbOpenObject(line, id, ZrDb::kForWrite), Quor::eOk);
    line->erase();
    line->erase(false);
    line->close();
    EXPECT_THAT(listener.told, IsEmpty());
}

TEST_F(Notifications, EraseOfWhatIsErasedIsNotTold) {
    const ZrDbObjectId id = addLine(*database);
    erase(id);
    listener.told.clear();
    erase(id);
    EXPECT_THAT(listener.told, IsEmpty());
}

TEST_F(Notifications, UndoAndRedoOfAnAppendAreToldByNamesOfTheirOwn) {
    addLine(*database);
    listener.told.clear();
    database->journal().undo();
    database->journal().redo();
    EXPECT_THAT(listener.told, ElementsAre("unappended", "reappended"));
}

TEST_F(Notifications, UndoTellsTheChangesOfAGroupFromLastToFirst) {
    const ZrDbObjectId first = addLine(*database);
    group(*database, L"MOVE", [&] {
        ZrDbObjectPointer<ZrDbLine>(first, ZrDb::kForWrite)->setStartPoint({});
        erase(first);
    });
    listener.told.clear();
    database->journal().undo();
    EXPECT_THAT(listener.told, ElementsAre("unerased", "opened", "modified"));
    listener.told.clear();
    database->journal().redo();
    EXPECT_THAT(listener.told, ElementsAre("opened", "modified", "erased"));
}

TEST_F(Notifications, SettingsAreToldByNameAndOnlyWhenTheyChange) {
    database->setHeader(L"$LUPREC", 70, 6LL);
    database->setHeader(L"$LUPREC", 70, 6LL);
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"0");
    database->setDefaultLighting(false);
    database->journal().undo();
    EXPECT_THAT(listener.told, ElementsAre("variable LUPREC", "variable LIGHTINGUNITS", "variable DEFAULTLIGHTING",
                                           "variable DEFAULTLIGHTING"));
}

TEST_F(Notifications, GoodbyeIsToldWhenTheDrawingGoes) {
    database.reset();
    EXPECT_THAT(listener.told, ElementsAre("goodbye"));
}

TEST_F(Notifications, ListenersAreToldInTheOrderOfAdding) {
    struct Named : ZrDbDatabaseReactor {
        void objectAppended(const ZrDbDatabase&, const ZrDbObject&) override { order->push_back(name); }
        std::vector<std::string>* order = nullptr;
        std::string name;
    };
    std::vector<std::string> order;
    Named first;
    Named second;
    first.order = second.order = &order;
    first.name = "first";
    second.name = "second";
    database->interface().addReactor(&first);
    database->interface().addReactor(&second);
    addLine(*database);
    database->interface().removeReactor(&first);
    addLine(*database);
    EXPECT_THAT(order, ElementsAre("first", "second", "second"));
    database->interface().removeReactor(&second);
}

// Takes a listener out as soon as it is told anything.
struct Remover : Listener {
    void note(const char* what, const ZrDbObject& object) override {
        Listener::note(what, object);
        database->removeReactor(victim);
    }
    ZrDbDatabase* database = nullptr;
    ZrDbDatabaseReactor* victim = nullptr;
};

TEST_F(Notifications, ListenerMayLeaveWhileItIsTold) {
    Remover leaver;
    leaver.database = &database->interface();
    leaver.victim = &leaver;
    Listener last;
    database->interface().addReactor(&leaver);
    database->interface().addReactor(&last);
    addLine(*database);
    addLine(*database);
    EXPECT_THAT(leaver.told, ElementsAre("appended"));
    EXPECT_THAT(last.told, ElementsAre("appended", "appended"));
    database->interface().removeReactor(&last);
}

TEST_F(Notifications, ListenerThatWasTakenOutMeanwhileIsNotTold) {
    Remover remover;
    Listener victim;
    remover.database = &database->interface();
    remover.victim = &victim;
    database->interface().addReactor(&remover);
    database->interface().addReactor(&victim);
    addLine(*database);
    EXPECT_THAT(victim.told, IsEmpty());
    database->interface().removeReactor(&remover);
}

TEST_F(Notifications, ListenerMayChangeTheDrawingDuringUndo) {
    struct Meddler : ZrDbDatabaseReactor {
        void objectUnAppended(const ZrDbDatabase&, const ZrDbObject&) override { host->setHeader(L"$LUPREC", 70, 3LL); }
        Database* host = nullptr;
    };
    Meddler meddler;
    meddler.host = database.get();
    const ZrDbObjectId line = addLine(*database);
    database->interface().addReactor(&meddler);
    database->journal().undo();
    EXPECT_TRUE(line.isErased());
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(3LL));
    database->interface().removeReactor(&meddler);
}

} // namespace
} // namespace quor::db
