#include "host/dxf/patch.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace quor::dxf {
namespace {

TEST(PatchList, WithoutPatchesTheFileIsOnePieceOfTheImage) {
    const std::string image = "abc";
    const Segments segments = PatchList().segments(image);
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_EQ(segments[0].data(), image.data());
}

TEST(PatchList, ReplacesAndInsertsInAnyOrder) {
    PatchList patches;
    patches.replace(6, 9, "SIX");
    patches.insert(0, ">");
    patches.remove(1, 3);
    patches.insert(10, "<");
    EXPECT_EQ(joined(patches.segments("0123456789")), ">0345SIX9<");
    EXPECT_EQ(totalSize(patches.segments("0123456789")), 10U);
}

TEST(PatchList, InsertsAtOnePlaceKeepTheirOrderAndStandBeforeAReplacement) {
    PatchList patches;
    patches.replace(2, 4, "R");
    patches.insert(2, "a");
    patches.insert(4, "z");
    patches.insert(2, "b");
    EXPECT_EQ(joined(patches.segments("012345")), "01abRz45");
}

TEST(PatchList, UntouchedSlicesAreNotCopied) {
    const std::string image = "0123456789";
    PatchList patches;
    patches.insert(5, "x");
    const Segments segments = patches.segments(image);
    ASSERT_EQ(segments.size(), 3U);
    EXPECT_EQ(segments[2].data(), image.data() + 5);
}

TEST(PatchList, EverythingMayBeRemoved) {
    PatchList patches;
    patches.remove(0, 3);
    EXPECT_TRUE(patches.segments("abc").empty());
}

TEST(PatchList, OverlapsAndPlacesOutsideTheFileAreRefused) {
    PatchList overlapping;
    overlapping.remove(1, 4);
    overlapping.remove(3, 5);
    EXPECT_THROW((void)overlapping.segments("0123456789"), std::logic_error);
    PatchList outside;
    outside.remove(2, 4);
    EXPECT_THROW((void)outside.segments("012"), std::logic_error);
    EXPECT_THROW(outside.replace(4, 2, ""), std::logic_error);
}

} // namespace
} // namespace quor::dxf
