#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

std::vector<std::string> sampleNames() {
    const auto folder = std::filesystem::path(QUOR_TEST_DATA) / "dxf";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".dxf")
            names.push_back(entry.path().lexically_relative(folder).generic_string());
    std::sort(names.begin(), names.end());
    return names;
}

// Every drawing of the test data, damaged ones mended as far as that goes.
struct Samples : testing::TestWithParam<std::string> {
    std::string bytes = fileBytes(GetParam());
    std::unique_ptr<Database> database = parsed(bytes, true);
};

TEST_P(Samples, AreSavedUnchangedAfterEveryObjectWasLookedAt) {
    for (const auto& block : database->structure().blocks())
        for (ObjectEntry* entity : block->entities)
            EXPECT_EQ(ZrDbObjectPointer<ZrDbEntity>(ZrDbObjectId(entity), ZrDb::kForRead).openStatus(), Quor::eOk);
    for (const ZrDbObjectId layer : database->layerIds())
        EXPECT_EQ(ZrDbObjectPointer<ZrDbLayerTableRecord>(layer, ZrDb::kForRead).openStatus(), Quor::eOk);
    EXPECT_EQ(bytesOf(*database), bytes);
}

TEST_P(Samples, TakeALineOnANewLayerAndGiveItBack) {
    const auto count = database->entities(database->interface().modelSpaceId()).size();
    group(*database, L"LINE", [&] {
        const ZrDbObjectId layer = database->makeLayer(L"QUOR_TEST");
        const ZrDbObjectId line = addLine(*database);
        ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite)->setLayer(layer);
    });
    const auto again = parsed(bytesOf(*database), true);
    const auto entities = again->entities(again->interface().modelSpaceId());
    ASSERT_EQ(entities.size(), count + 1);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbEntity>(entities.back(), ZrDb::kForRead)->layer(), L"QUOR_TEST");
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), bytes);
}

TEST_P(Samples, LoseAllEntitiesOfModelSpaceAndGetThemBack) {
    group(*database, L"ERASE", [&] {
        for (const ZrDbObjectId id : database->entities(database->interface().modelSpaceId()))
            erase(id);
    });
    const auto again = parsed(bytesOf(*database), true);
    EXPECT_TRUE(again->entities(again->interface().modelSpaceId()).empty());
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), bytes);
}

INSTANTIATE_TEST_SUITE_P(Drawings, Samples, testing::ValuesIn(sampleNames()));

} // namespace
} // namespace quor::db
