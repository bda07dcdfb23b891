#include "sdk/ui/device_context.h"

#include "host/ui/recording_device.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/resource_templates.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using testing::ElementsAre;
using ui::Font;

class DeviceContext : public testing::Test {
protected:
    ui::RecordingDevice device;
    CDC dc{device};
};

TEST_F(DeviceContext, ANewOneDrawsBlackOnWhiteOpaqueInTheWindowsFont) {
    dc.DrawText(L"x", {0, 0, 9, 9}, DT_LEFT);

    EXPECT_THAT(device.lines(), ElementsAre(L"text \"x\" 0,0,9,9 #000000 on #FFFFFF Window"));
    EXPECT_EQ(dc.GetTextColor(), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetBkColor(), RGB(255, 255, 255));
    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
}

TEST_F(DeviceContext, EachSettingAnswersWhatItWasBefore) {
    EXPECT_EQ(dc.SetTextColor(RGB(1, 2, 3)), RGB(0, 0, 0));
    EXPECT_EQ(dc.SetTextColor(0), RGB(1, 2, 3));
    EXPECT_EQ(dc.SetBkColor(RGB(4, 5, 6)), RGB(255, 255, 255));
    EXPECT_EQ(dc.SetBkColor(0), RGB(4, 5, 6));
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.SetBkMode(OPAQUE), TRANSPARENT);
    EXPECT_EQ(dc.SelectStockObject(DEFAULT_GUI_FONT), Font::Window);
    EXPECT_EQ(dc.SelectFont(Font::Window), Font::DefaultGui);
}

TEST_F(DeviceContext, AnUnknownStockObjectChangesNothing) {
    dc.SelectStockObject(DEFAULT_GUI_FONT);

    EXPECT_EQ(dc.SelectStockObject(1), Font::DefaultGui);

    EXPECT_EQ(dc.SelectFont(Font::Window), Font::DefaultGui);
}

TEST_F(DeviceContext, TextIsDrawnInTheColoursTheModeAndTheFontInUse) {
    dc.SetTextColor(RGB(0x11, 0x22, 0x33));
    dc.SetBkColor(RGB(0x44, 0x55, 0x66));
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.DrawText(L"a", {1, 2, 3, 4}, DT_SINGLELINE);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(L"b", {1, 2, 3, 4}, DT_SINGLELINE);

    EXPECT_THAT(device.lines(), ElementsAre(L"text \"a\" 1,2,3,4 singleline #112233 on #445566 DefaultGui",
                                            L"text \"b\" 1,2,3,4 singleline #112233 DefaultGui"));
}

TEST_F(DeviceContext, AFillKeepsTheColoursInUse) {
    dc.FillSolidRect({0, 0, 5, 5}, RGB(9, 9, 9));

    EXPECT_THAT(device.lines(), ElementsAre(L"fill 0,0,5,5 #090909"));
    EXPECT_EQ(dc.GetBkColor(), RGB(255, 255, 255));
}

TEST_F(DeviceContext, FocusRectanglesAndPicturesReachTheDevice) {
    const ui::PictureResource picture{7514, {0, L""}, {21, 21}, "<svg/>"};

    dc.DrawFocusRect({0, 0, 5, 5});
    dc.DrawPicture(picture, {1, 1, 22, 22}, ILD_TRANSPARENT);

    EXPECT_THAT(device.lines(), ElementsAre(L"focus 0,0,5,5", L"picture 7514 1,1,22,22 transparent"));
}

TEST_F(DeviceContext, TextIsMeasuredByTheDevice) { EXPECT_EQ(dc.GetTextExtent(L"灯1"), (CSize{21, 16})); }

} // namespace
} // namespace quor
