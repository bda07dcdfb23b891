#include "desktop/viewport/picture.h"

#include "desktop/viewport/viewport_colors.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

Picture::Subject usual() {
    Picture::Subject subject;
    subject.version = 1;
    subject.size = QSize(40, 30);
    return subject;
}

TEST(PictureTest, TheSameIsRenderedOnce) {
    Picture picture;
    picture.of(usual(), {});
    picture.of(usual(), {});
    EXPECT_EQ(picture.renderCount(), 1U);
}

class AnotherPicture : public testing::TestWithParam<void (*)(Picture::Subject&)> {};

TEST_P(AnotherPicture, IsRenderedAnew) {
    Picture picture;
    picture.of(usual(), {});
    Picture::Subject other = usual();
    GetParam()(other);
    picture.of(other, {});
    EXPECT_EQ(picture.renderCount(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Each, AnotherPicture,
                         testing::Values([](Picture::Subject& s) { ++s.version; },
                                         [](Picture::Subject& s) { s.camera.height *= 2; },
                                         [](Picture::Subject& s) { s.style = gs::VisualStyle::Shaded; },
                                         [](Picture::Subject& s) { s.lighting = Lighting::OfDrawing; },
                                         [](Picture::Subject& s) { s.isDark = false; },
                                         [](Picture::Subject& s) { s.pixelRatio = 2; },
                                         [](Picture::Subject& s) { s.size = QSize(50, 30); }));

TEST(PictureTest, AFinePictureServesWhereAFastOneWouldDo) {
    Picture picture;
    picture.of(usual(), {});
    Picture::Subject moving = usual();
    moving.isMoving = true;
    picture.of(moving, {});
    EXPECT_EQ(picture.renderCount(), 1U);
}

TEST(PictureTest, AFastPictureDoesNotServeWhereAFineOneIsWanted) {
    Picture picture;
    Picture::Subject moving = usual();
    moving.isMoving = true;
    picture.of(moving, {});
    picture.of(usual(), {});
    EXPECT_EQ(picture.renderCount(), 2U);
}

TEST(PictureTest, HasThePixelsOfTheScreen) {
    Picture picture;
    Picture::Subject subject = usual();
    subject.size = QSize(80, 60);
    subject.pixelRatio = 2;
    const QImage& image = picture.of(subject, {});
    EXPECT_EQ(image.size(), QSize(80, 60));
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(40, 30));
}

TEST(PictureTest, TheBackgroundGoesByTheTheme) {
    Picture picture;
    Picture::Subject subject = usual();
    EXPECT_LT(qGray(picture.of(subject, {}).pixel(20, 15)), 80);
    subject.isDark = false;
    EXPECT_GT(qGray(picture.of(subject, {}).pixel(20, 15)), 200);
}

} // namespace
} // namespace quor::desktop::test
