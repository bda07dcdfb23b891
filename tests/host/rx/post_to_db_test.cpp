#include "sdk/db/line.h"
#include "sdk/rx/command.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <memory>

using quor::test::TestSession;

namespace {

class PostToDb : public testing::Test {
protected:
    ZrDbDatabase& database() { return *session_.document().database(); }
    ZrDbObjectId post(const wchar_t* space) {
        auto line = std::make_unique<ZrDbLine>();
        const ZrDbObjectId id = RxCommand::postToDb(*line, space, nullptr, true);
        if (id.isValid())
            (void)line.release(); // the drawing's from now on
        return id;
    }
    ZrDbObjectId ownerOf(ZrDbObjectId id) {
        ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        return entity ? entity->blockId() : ZrDbObjectId();
    }

    TestSession session_;
};

} // namespace

TEST_F(PostToDb, EntityGoesIntoTheCurrentSpaceAndIsClosed) {
    EXPECT_EQ(ownerOf(post(nullptr)), database().modelSpaceId());
    ZrDbObjectPointer<ZrDbBlockTableRecord> space(database().modelSpaceId(), ZrDb::kForWrite);
    EXPECT_TRUE(space);
}

TEST_F(PostToDb, SpacesHaveTheNamesOfTheirBlocks) {
    EXPECT_EQ(ownerOf(post(L"*Model_Space")), database().modelSpaceId());
    EXPECT_EQ(ownerOf(post(L"*paper_space")), database().paperSpaceId());
}

TEST_F(PostToDb, LayoutNameMeansItsPaperSpace) {
    const auto layouts = session_.document().drawing().layouts();
    ASSERT_FALSE(layouts.empty());
    EXPECT_EQ(ownerOf(post(layouts.front().name.c_str())), layouts.front().blockId);
}

TEST_F(PostToDb, UnknownSpaceTakesNothing) { EXPECT_FALSE(post(L"nowhere").isValid()); }

TEST_F(PostToDb, EntityStaysOpenWhenAsked) {
    auto line = std::make_unique<ZrDbLine>();
    ASSERT_TRUE(RxCommand::postToDb(*line, nullptr, &database(), false).isValid());
    ZrDbLine* posted = line.release(); // the drawing's from now on
    EXPECT_TRUE(posted->isWriteEnabled());
    EXPECT_EQ(posted->close(), Quor::eOk);
}
