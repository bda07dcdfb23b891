#include "sdk/ui/image_list.h"

#include "host/ui/recording_device.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImageList : public testing::Test {
protected:
    ImageList() { bitmap.LoadBitmap(7514); }

    const PictureResource pictures[1] = {{.id = 7514, .name = {0, L"lamp"}, .size = {21, 21}, .svg = ""}};
    const ZwUiResources resources{{}, {}, pictures};
    const ZwResourceScope scope{&resources};
    CBitmap bitmap;
    CImageList images;
};

TEST_F(ImageList, KeepsThePicturesThatAreAdded) {
    EXPECT_TRUE(images.Create(21, 22, ILC_COLOR8 | ILC_MASK, 0, 2));

    EXPECT_EQ(images.Add(bitmap), 0);
    EXPECT_EQ(images.Add(bitmap), 1);

    EXPECT_EQ(images.GetImageCount(), 2);
    EXPECT_EQ(images.GetImageSize(), (CSize{21, 22}));
    EXPECT_EQ(images.flags(), ILC_COLOR8 | ILC_MASK);
    EXPECT_EQ(images.picture(1), &pictures[0]);
    EXPECT_EQ(images.picture(2), nullptr);
    EXPECT_EQ(images.picture(-1), nullptr);
}

TEST_F(ImageList, RefusesAnEmptySize) {
    EXPECT_FALSE(images.Create(0, 21, ILC_COLOR8, 0, 2));
    EXPECT_FALSE(images.Create(21, -1, ILC_COLOR8, 0, 2));
    EXPECT_EQ(images.Add(bitmap), -1);
}

TEST_F(ImageList, RefusesABitmapWithoutAPicture) {
    images.Create(21, 21, ILC_COLOR8, -1, 2);

    EXPECT_EQ(images.Add(CBitmap()), -1);
    EXPECT_EQ(images.GetImageCount(), 0);
}

TEST_F(ImageList, CreatedAgainIsEmpty) {
    images.Create(21, 21, ILC_COLOR8, 0, 2);
    images.Add(bitmap);

    images.Create(16, 16, ILC_COLOR8, 0, 2);

    EXPECT_EQ(images.GetImageCount(), 0);
}

TEST_F(ImageList, DrawsAnImageInItsSize) {
    images.Create(30, 21, ILC_COLOR8, 0, 2);
    images.Add(bitmap);
    RecordingDevice device;
    CDC dc(device);

    EXPECT_TRUE(images.Draw(dc, 0, {3, 4}, ILD_NORMAL));

    EXPECT_THAT(device.lines(), ElementsAre(L"picture 7514 3,4,33,25 normal"));
}

TEST_F(ImageList, DrawsNothingForAnImageThatDoesNotExist) {
    images.Create(21, 21, ILC_COLOR8, 0, 2);
    RecordingDevice device;
    CDC dc(device);

    EXPECT_FALSE(images.Draw(dc, 0, {3, 4}, ILD_NORMAL));

    EXPECT_THAT(device.lines(), IsEmpty());
}

} // namespace
} // namespace quor::ui
