#include "desktop/viewport/ucs_icon.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

constexpr gs::PictureSize kSize{400, 300};

TEST(UcsIconTest, StandsAtTheOriginOfTheUcsWhereThatIsSeen) {
    const UcsIcon icon = ucsIcon(gs::Projector(gs::Camera(), kSize), ZrGeMatrix3d());
    EXPECT_TRUE(icon.atOrigin);
    EXPECT_EQ(icon.origin, QPointF(200, 150));
}

TEST(UcsIconTest, StandsInTheLowerLeftCornerOtherwise) {
    gs::Camera elsewhere;
    elsewhere.target = {1000, 0, 0};
    const UcsIcon icon = ucsIcon(gs::Projector(elsewhere, kSize), ZrGeMatrix3d());
    EXPECT_FALSE(icon.atOrigin);
    EXPECT_LT(icon.origin.x(), 100);
    EXPECT_GT(icon.origin.y(), 200);
}

TEST(UcsIconTest, FromAboveXPointsRightAndYUp) {
    const UcsIcon icon = ucsIcon(gs::Projector(gs::Camera(), kSize), ZrGeMatrix3d());
    EXPECT_GT(icon.tips[0].x(), icon.origin.x());
    EXPECT_DOUBLE_EQ(icon.tips[0].y(), icon.origin.y());
    EXPECT_LT(icon.tips[1].y(), icon.origin.y());
    EXPECT_EQ(icon.tips[2], icon.origin);
}

TEST(UcsIconTest, ShowsTheDirectionsOfTheUcs) {
    const ZrGeMatrix3d turned = ZrGeMatrix3d().setToRotation(std::numbers::pi / 2, ZrGeVector3d::kZAxis);
    const UcsIcon icon = ucsIcon(gs::Projector(gs::Camera(), kSize), turned);
    EXPECT_NEAR(icon.tips[0].x(), icon.origin.x(), 1e-9);
    EXPECT_LT(icon.tips[0].y(), icon.origin.y());
}

} // namespace
} // namespace quor::desktop::test
