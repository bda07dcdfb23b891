#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

// Drawings cut off at different places.
struct BrokenOff : testing::TestWithParam<const char*> {
    // The drawing up to and with the text.
    [[nodiscard]] static std::string cut() {
        const std::string whole = fileBytes("own/light_2018.dxf");
        const std::string at = GetParam();
        return whole.substr(0, whole.find(at) + at.size());
    }

    std::string bytes = cut();
    std::unique_ptr<Database> database = parsed(bytes, true);
};

TEST_P(BrokenOff, IsRefusedUnlessItIsToBeRecovered) { EXPECT_FALSE(Database::fromBytes(bytes).ok()); }

TEST_P(BrokenOff, SaysWhatWasWrong) { EXPECT_FALSE(database->problems().empty()); }

TEST_P(BrokenOff, SavedUnchangedIsTheSameFile) { EXPECT_EQ(bytesOf(*database), bytes); }

TEST_P(BrokenOff, GetsItsEndWithALine) {
    addLine(*database);
    const std::string mended = bytesOf(*database);
    const auto again = Database::fromBytes(mended);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again.value()->entities(again.value()->interface().modelSpaceId()).size(),
              database->entities(database->interface().modelSpaceId()).size());
}

TEST_P(BrokenOff, GetsItsEndAndTheSectionsThatALightNeeds) {
    const ZrDbObjectId light = addLight(*database, L"Added");
    change(light, [](ZrDbLight& added) { added.setPhysicalIntensity(42); });
    const std::string mended = bytesOf(*database);
    const auto again = Database::fromBytes(mended);
    ASSERT_TRUE(again.ok());
    const ZrDbObjectId found = again.value()->interface().objectId(light.handle());
    const ZrDbObjectPointer<ZrDbLight> read(found, ZrDb::kForRead);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->name(), L"Added");
    EXPECT_EQ(read->physicalIntensity(), 42);
}

TEST_P(BrokenOff, GetsItsEndWithALayer) {
    database->makeLayer(L"Walls");
    const auto again = Database::fromBytes(bytesOf(*database));
    ASSERT_TRUE(again.ok());
    EXPECT_NE(again.value()->layers().find(L"Walls"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Places, BrokenOff,
                         testing::Values("$LIMMIN\n", "AcDbPlaceHolder\n", "ADSK_SYSTEM_LIGHTS\n",
                                         "SECTION\n  2\nBLOCKS\n", "0800000000000000\n",
                                         "ADSK_XREC_PHOTOMETRICLIGHTINFO\n", "AcDbXrecord\n280\n     1\n290\n     0"));

TEST(Recovered, SectionWithoutItsEndIsClosedBeforeANewOne) {
    const std::string bytes =
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nEOF\n";
    const auto database = parsed(bytes, true);
    EXPECT_EQ(bytesOf(*database), bytes);
    addLight(*database);
    const std::string mended = bytesOf(*database);
    ASSERT_TRUE(Database::fromBytes(mended).ok());
    EXPECT_FALSE(lightOf(*parsed(mended)).isNull());
}

} // namespace
} // namespace quor::db
