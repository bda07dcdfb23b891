// Whether a drawing counts as modified by an editing that came to nothing.
#include "tests/host/db/ref_editing.h"

namespace quor::db {
namespace {

using namespace drawings;

struct ModifiedByEditing : RefEditing {
    [[nodiscard]] bool isModified() const { return database->journal().isModified(); }
    void undo() { database->journal().undo(); }
    void redo() { database->journal().redo(); }
};

TEST_F(ModifiedByEditing, IsADrawingWhileItGoesOn) {
    begin(kPlain);

    EXPECT_TRUE(isModified());
}

TEST_F(ModifiedByEditing, IsNoneOfWhichNothingWasChanged) {
    begin(kPlain);
    save();

    EXPECT_FALSE(isModified());
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(ModifiedByEditing, IsNoneThatWasLeftAtOnce) {
    begin(kPlain);
    discard();

    EXPECT_FALSE(isModified());
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(ModifiedByEditing, IsNoneInWhichAllWasUndone) {
    begin(kPlain);
    group(*database, L"ERASE", [&] { erase(spot()); });
    undo();

    save();

    EXPECT_FALSE(isModified());
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(ModifiedByEditing, IsOneWithAnotherBlock) {
    begin(kPlain);
    erase(spot());
    save();

    EXPECT_TRUE(isModified());
}

TEST_F(ModifiedByEditing, IsOneInWhichSomethingElseWasSetMeanwhile) {
    begin(kPlain);
    group(*database, L"LAYER", [&] { erase(id(0x69)); });
    discard();

    EXPECT_TRUE(isModified());
}

TEST_F(ModifiedByEditing, IsOneThatWasModifiedBefore) {
    group(*database, L"LINE", [&] { addLine(*database); });
    begin(kPlain);
    save();

    EXPECT_TRUE(isModified());
}

TEST_F(ModifiedByEditing, IsNoneThatWasSavedBefore) {
    group(*database, L"LINE", [&] { addLine(*database); });
    database->journal().markSaved();
    begin(kPlain);
    save();

    EXPECT_FALSE(isModified());
}

TEST_F(ModifiedByEditing, IsOneToWhichUndoLeadsBack) {
    begin(kPlain);
    save();

    undo();
    EXPECT_TRUE(isModified());
    undo();
    EXPECT_FALSE(isModified());
    redo();
    EXPECT_TRUE(isModified());
    redo();
    EXPECT_FALSE(isModified());
}

TEST_F(ModifiedByEditing, IsNoneAfterOneEditingAndAnother) {
    begin(kPlain);
    save();
    begin(kMirrored);
    discard();

    EXPECT_FALSE(isModified());
}

TEST_F(ModifiedByEditing, IsOneThatIsChangedAfterwards) {
    begin(kPlain);
    save();
    group(*database, L"LINE", [&] { addLine(*database); });

    EXPECT_TRUE(isModified());
    undo();
    EXPECT_FALSE(isModified());
}

TEST_F(ModifiedByEditing, IsOneThatTheSameCommandChangesAfterwards) {
    begin(kPlain);
    group(*database, L"BOTH", [&] {
        EXPECT_TRUE(editing().save().ok());
        addLine(*database);
    });

    EXPECT_TRUE(isModified());
    undo();
    EXPECT_TRUE(isModified());
}

TEST_F(ModifiedByEditing, IsNoneWhenOneCommandDoesItAll) {
    group(*database, L"BOTH", [&] {
        EXPECT_TRUE(editing().begin(entry(kPlain)).ok());
        EXPECT_TRUE(editing().save().ok());
    });

    EXPECT_FALSE(isModified());
}

TEST_F(ModifiedByEditing, IsOneInWhichTheEditingGoesOnAgainAfterASave) {
    begin(kPlain);
    save();
    database->journal().markSaved();

    undo();

    EXPECT_TRUE(isModified());
    redo();
    EXPECT_FALSE(isModified());
}

} // namespace
} // namespace quor::db
