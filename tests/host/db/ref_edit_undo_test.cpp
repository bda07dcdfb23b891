#include "tests/host/db/ref_editing.h"

namespace quor::db {
namespace {

using namespace drawings;

TEST_F(RefEditing, UndoGoesOutOfAnEditingThatWasBegun) {
    begin(kPlain);

    database->journal().undo();

    EXPECT_FALSE(editing().isActive());
    EXPECT_TRUE(isVisible(kPlain));
    EXPECT_EQ(bytesOf(*database), original);
    EXPECT_FALSE(database->journal().isModified());
}

TEST_F(RefEditing, RedoGoesBackIn) {
    begin(kPlain);
    database->journal().undo();

    database->journal().redo();

    EXPECT_EQ(editing().blockName(), L"LAMP");
    EXPECT_EQ(workset().size(), 4U);
    EXPECT_FALSE(isVisible(kPlain));
}

TEST_F(RefEditing, UndoResumesAnEditingThatWasSaved) {
    begin(kPlain);
    group(*database, L"CHANGE", [&] { change(spot(), [](ZrDbLight& light) { light.setIntensity(3); }); });
    erase(pendant());
    addLight(*database);
    const std::vector<ZrDbObjectId> before = workset();
    save();

    database->journal().undo();

    EXPECT_EQ(workset(), before);
    EXPECT_FALSE(isVisible(kPlain));
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(id(0x46), ZrDb::kForRead)->intensity(), 0.8);
    EXPECT_FALSE(id(0x43).isErased());
    discard();
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(RefEditing, RedoSavesAgain) {
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });
    save();
    const std::string saved = bytesOf(*database);
    database->journal().undo();

    database->journal().redo();

    EXPECT_FALSE(editing().isActive());
    EXPECT_EQ(bytesOf(*database), saved);
}

TEST_F(RefEditing, UndoResumesAnEditingThatWasDiscarded) {
    begin(kPlain);
    const ZrDbObjectId made = addLight(*database);
    discard();

    database->journal().undo();

    EXPECT_TRUE(editing().holds(*made.entry()));
    EXPECT_EQ(workset().size(), 5U);
}

TEST_F(RefEditing, WhatUndoTookAwayIsNotSaved) {
    begin(kPlain);
    group(*database, L"LINE", [&] { addLine(*database); });
    database->journal().undo();

    EXPECT_EQ(save().added, 0U);
}

} // namespace
} // namespace quor::db
