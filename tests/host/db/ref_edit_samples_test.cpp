// Every reference of every test drawing: editing it and leaving it alone changes not a byte of the drawing.
#include "host/db/ref_edit.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

constexpr const char* kDrawingsWithBlocks[] = {"as_BLOCKVISIBILITYPARAMETER.dxf",
                                               "as_sample_AC1009_binary.dxf",
                                               "as_sample_AC1015_binary.dxf",
                                               "as_sample_AC1032_binary.dxf",
                                               "bn_floorplan.dxf",
                                               "bn_supported_entities.dxf",
                                               "cv_block_color_chinese.dxf",
                                               "derived/gbk_AC1015.dxf",
                                               "ez_ASCII_R12.dxf",
                                               "nd_sample_binary.dxf",
                                               "own/luminaires.dxf"};

struct RefEditSamples : testing::TestWithParam<const char*> {
    // The references of model space that can be edited.
    std::vector<ObjectEntry*> references() {
        std::vector<ObjectEntry*> found;
        for (const ZrDbObjectId id : database->entities(database->interface().modelSpaceId()))
            if (!database->refEdit().whyNot(*id.entry()))
                found.push_back(id.entry());
        return found;
    }

    const std::string original = drawings::fileBytes(GetParam());
    std::unique_ptr<Database> database = drawings::parsed(original);
};

TEST_P(RefEditSamples, AreAsTheyWereAfterAnEditingThatChangedNothing) {
    for (ObjectEntry* reference : references()) {
        ASSERT_TRUE(database->refEdit().begin(*reference).ok());
        const RefEditResult result = database->refEdit().save().value();
        EXPECT_EQ(result.changed + result.added + result.erased, 0U) << std::hex << reference->handle;
    }

    EXPECT_EQ(drawings::bytesOf(*database), original);
}

TEST_P(RefEditSamples, TakeALineIntoEachBlock) {
    std::size_t added = 0;
    for (ObjectEntry* reference : references()) {
        ASSERT_TRUE(database->refEdit().begin(*reference).ok());
        drawings::addLine(*database);
        added += database->refEdit().save().value().added;
    }

    EXPECT_GT(added, 0U);
    const auto saved = drawings::reopened(*database);
    EXPECT_EQ(saved->entities(saved->interface().modelSpaceId()).size(),
              database->entities(database->interface().modelSpaceId()).size());
}

INSTANTIATE_TEST_SUITE_P(TestData, RefEditSamples, testing::ValuesIn(kDrawingsWithBlocks),
                         [](const auto& test) { return std::filesystem::path(test.param).stem().string(); });

} // namespace
} // namespace quor::db
