#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

struct JournalTest : testing::Test {
    [[nodiscard]] Journal& journal() { return database->journal(); }
    [[nodiscard]] std::size_t entities() const {
        return database->entities(database->interface().modelSpaceId()).size();
    }

    std::unique_ptr<Database> database = Database::makeNew();
};

TEST_F(JournalTest, UndoAndRedoGiveTheNamesOfTheGroups) {
    group(*database, L"LINE", [&] { addLine(*database); });
    group(*database, L"ERASE", [&] { addLine(*database); });
    EXPECT_EQ(journal().undo(), L"ERASE");
    EXPECT_EQ(journal().undo(), L"LINE");
    EXPECT_EQ(journal().undo(), std::nullopt);
    EXPECT_EQ(journal().redo(), L"LINE");
    EXPECT_EQ(journal().redo(), L"ERASE");
    EXPECT_EQ(journal().redo(), std::nullopt);
}

TEST_F(JournalTest, NestedGroupsAreOneUnderTheNameOfTheOutermost) {
    group(*database, L"SCRIPT", [&] {
        group(*database, L"LINE", [&] { addLine(*database); });
        group(*database, L"LINE", [&] { addLine(*database); });
    });
    EXPECT_EQ(journal().undoDepth(), 1U);
    EXPECT_EQ(journal().undo(), L"SCRIPT");
    EXPECT_EQ(entities(), 0U);
}

TEST_F(JournalTest, GroupWithoutChangesLeavesNoTrace) {
    group(*database, L"LINE", [&] { addLine(*database); });
    journal().undo();
    group(*database, L"LIST", [] {});
    EXPECT_EQ(journal().undoDepth(), 0U);
    EXPECT_EQ(journal().redoDepth(), 1U);
    EXPECT_FALSE(journal().isModified());
}

TEST_F(JournalTest, ChangeOutsideAGroupIsAGroupOfItsOwn) {
    const ZrDbObjectId line = addLine(*database);
    EXPECT_EQ(journal().undoDepth(), 1U);
    EXPECT_FALSE(journal().isOpen());
    EXPECT_EQ(journal().undo(), L"");
    EXPECT_TRUE(line.isErased());
}

TEST_F(JournalTest, NewChangeForgetsWhatCouldBeRestored) {
    group(*database, L"LINE", [&] { addLine(*database); });
    journal().undo();
    group(*database, L"CIRCLE", [&] { addLine(*database); });
    EXPECT_EQ(journal().redoDepth(), 0U);
    EXPECT_EQ(journal().redo(), std::nullopt);
}

TEST_F(JournalTest, NoUndoInsideAnOpenGroup) {
    addLine(*database);
    journal().begin(L"MOVE");
    EXPECT_EQ(journal().undo(), std::nullopt);
    EXPECT_EQ(journal().redo(), std::nullopt);
    journal().end();
    EXPECT_EQ(entities(), 1U);
}

TEST_F(JournalTest, RollbackTakesBackTheOpenGroupAndForgetsIt) {
    const ZrDbObjectId line = addLine(*database);
    const std::string before = bytesOf(*database);
    journal().begin(L"MOVE");
    ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite)->setStartPoint({9, 9, 9});
    addLight(*database);
    database->setHeader(L"$LUPREC", 70, 1LL);
    journal().rollback();
    journal().end();
    EXPECT_EQ(bytesOf(*database), before);
    EXPECT_EQ(journal().undoDepth(), 1U);
    EXPECT_EQ(journal().redoDepth(), 0U);
}

TEST_F(JournalTest, ChangesAfterARollbackCountAgain) {
    const ZrDbObjectId line = addLine(*database);
    journal().begin(L"MOVE");
    {
        const ZrDbObjectPointer<ZrDbLine> open(line, ZrDb::kForWrite);
        open->setStartPoint({8, 8, 8});
        journal().rollback();
        open->setStartPoint({9, 9, 9});
    }
    journal().end();
    journal().undo();
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->startPoint(), ZrGePoint3d(1, 2, 3));
}

TEST_F(JournalTest, EachGroupKeepsItsOwnPartOfOneLongOpening) {
    const ZrDbObjectId line = addLine(*database);
    {
        const ZrDbObjectPointer<ZrDbLine> open(line, ZrDb::kForWrite);
        group(*database, L"A", [&] { open->setStartPoint({7, 7, 7}); });
        group(*database, L"B", [&] { open->setStartPoint({8, 8, 8}); });
    }
    EXPECT_EQ(journal().undo(), L"B");
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->startPoint(), ZrGePoint3d(7, 7, 7));
    EXPECT_EQ(journal().undo(), L"A");
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->startPoint(), ZrGePoint3d(1, 2, 3));
}

TEST_F(JournalTest, DrawingIsModifiedUntilItIsSavedOrAllIsTakenBack) {
    EXPECT_FALSE(journal().isModified());
    addLine(*database);
    EXPECT_TRUE(journal().isModified());
    journal().undo();
    EXPECT_FALSE(journal().isModified());
    journal().redo();
    EXPECT_TRUE(journal().isModified());
    journal().markSaved();
    EXPECT_FALSE(journal().isModified());
    journal().undo();
    EXPECT_TRUE(journal().isModified());
    journal().redo();
    EXPECT_FALSE(journal().isModified());
}

TEST_F(JournalTest, ADifferentChangeAfterUndoIsNotTheSavedOne) {
    addLine(*database);
    journal().markSaved();
    journal().undo();
    addLine(*database);
    EXPECT_TRUE(journal().isModified());
}

TEST_F(JournalTest, DrawingIsModifiedInsideAGroupThatChangedSomething) {
    journal().begin(L"LINE");
    EXPECT_FALSE(journal().isModified());
    addLine(*database);
    EXPECT_TRUE(journal().isModified());
    journal().end();
}

TEST_F(JournalTest, ManyChangesOfAnObjectAreTakenBackAtOnce) {
    const ZrDbObjectId line = addLine(*database);
    group(*database, L"MOVE", [&] {
        ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite)->setStartPoint({7, 7, 7});
        ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite)->setEndPoint({8, 8, 8});
    });
    journal().undo();
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->startPoint(), ZrGePoint3d(1, 2, 3));
    journal().redo();
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->endPoint(), ZrGePoint3d(8, 8, 8));
}

// Undo gives the bytes of before, redo those of after, in every form of drawing.
struct SameBytes : testing::TestWithParam<const char*> {
    [[nodiscard]] static std::unique_ptr<Database> load() {
        return *GetParam() == '\0' ? Database::makeNew() : opened(GetParam());
    }
};

TEST_P(SameBytes, AfterUndoAndRedoOfANewLight) {
    const auto database = load();
    const std::string before = bytesOf(*database);
    group(*database, L"POINTLIGHT", [&] { addLight(*database); });
    const std::string after = bytesOf(*database);
    EXPECT_NE(after, before);
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), before);
    database->journal().redo();
    EXPECT_EQ(bytesOf(*database), after);
    EXPECT_EQ(bytesOf(*parsed(after)), after);
}

TEST_P(SameBytes, AfterUndoAndRedoOfAnErasedAndAChangedLight) {
    const auto database = load();
    const ZrDbObjectId kept = addLight(*database, L"Kept");
    const ZrDbObjectId light = addLight(*database, L"Second");
    const std::string before = bytesOf(*database);
    group(*database, L"ERASE", [&] {
        erase(light);
        change(kept, [](ZrDbLight& each) { each.setIntensity(2); });
    });
    const std::string after = bytesOf(*database);
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), before);
    database->journal().redo();
    EXPECT_EQ(bytesOf(*database), after);
}

TEST_P(SameBytes, WhenNothingWasChanged) {
    const auto database = load();
    const std::string before = bytesOf(*database);
    for (const ZrDbObjectId id : database->entities(database->interface().modelSpaceId()))
        const ZrDbObjectPointer<ZrDbEntity> looked(id, ZrDb::kForWrite);
    EXPECT_EQ(bytesOf(*database), before);
}

INSTANTIATE_TEST_SUITE_P(Drawings, SameBytes,
                         testing::Values("", "own/light_2000.dxf", "own/light_2007.dxf", "own/light_2018.dxf",
                                         "own/light_2000_binary.dxf"));

TEST(OldDrawing, GivesTheSameBytesAfterUndoAndRedoOfALine) {
    const auto database = opened("ez_ASCII_R12.dxf");
    const std::string before = bytesOf(*database);
    EXPECT_EQ(before, fileBytes("ez_ASCII_R12.dxf"));
    group(*database, L"LINE", [&] { addLine(*database); });
    const std::string after = bytesOf(*database);
    EXPECT_NE(after, before);
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), before);
    database->journal().redo();
    EXPECT_EQ(bytesOf(*database), after);
}

} // namespace
} // namespace quor::db
