#include "host/ui/recording_device.h"

#include "sdk/ui/image_list.h"
#include "sdk/ui/resource_templates.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ui::DrawingCall;
using ui::Font;
using ui::RecordingDevice;

const ui::PictureResource kPicture{7514, {0, L""}, {21, 21}, "<svg/>"};
constexpr COLORREF kPaper = RGB(0xFF, 0xFE, 0xFD);

TEST(RecordingDevice, KeepsEachCallAsALine) {
    RecordingDevice device;

    device.enter({0, 25, 200, 125});
    device.fill({0, 0, 200, 24}, RGB(0x2B, 0x2C, 0x2D));
    device.text(L"光源名称", {5, 0, 119, 24}, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS, RGB(0xDC, 0xDD, 0xDE),
                Font::DefaultGui, nullptr);
    device.focusRect({50, 0, 170, 24});
    device.picture(kPicture, {0, 0, 21, 21}, ILD_NORMAL);
    device.leave();

    EXPECT_THAT(device.lines(), ElementsAre(L"enter 0,25,200,125", L"fill 0,0,200,24 #2B2C2D",
                                            L"text \"光源名称\" 5,0,119,24 singleline vcenter endellipsis #DCDDDE "
                                            L"DefaultGui",
                                            L"focus 50,0,170,24", L"picture 7514 0,0,21,21 normal", L"leave"));
}

TEST(RecordingDevice, TellsTheColourBehindOpaqueTextAndShowsLineBreaks) {
    RecordingDevice device;

    device.text(L"a\nb", {0, 0, 9, 9}, DT_WORDBREAK | DT_VCENTER, RGB(0, 0, 0), Font::Window, &kPaper);

    EXPECT_THAT(device.lines(), ElementsAre(L"text \"a\\nb\" 0,0,9,9 wordbreak vcenter #000000 on #FFFEFD Window"));
}

TEST(RecordingDevice, ShowsBitsThatItDoesNotKnow) {
    RecordingDevice device;

    device.text(L"a", {0, 0, 9, 9}, DT_SINGLELINE | 0x40, RGB(0, 0, 0), Font::Window, nullptr);
    device.picture(kPicture, {0, 0, 9, 9}, 0x1A);

    EXPECT_THAT(device.lines(),
                ElementsAre(L"text \"a\" 0,0,9,9 singleline 0x40 #000000 Window", L"picture 7514 0,0,9,9 0x1A"));
}

TEST(RecordingDevice, KeepsCallsAsValues) {
    RecordingDevice device;

    device.fill({0, 0, 1, 1}, RGB(1, 2, 3));
    device.text(L"x", {0, 0, 1, 1}, DT_LEFT, RGB(1, 2, 3), Font::Window, &kPaper);

    EXPECT_THAT(device.calls(),
                ElementsAre(DrawingCall{.kind = DrawingCall::Kind::Fill, .rect = {0, 0, 1, 1}, .color = RGB(1, 2, 3)},
                            DrawingCall{.kind = DrawingCall::Kind::Text,
                                        .rect = {0, 0, 1, 1},
                                        .color = RGB(1, 2, 3),
                                        .text = L"x",
                                        .background = kPaper}));
}

TEST(RecordingDevice, ForgetsWhatWasDrawn) {
    RecordingDevice device;
    device.focusRect({0, 0, 1, 1});

    device.clear();

    EXPECT_THAT(device.calls(), IsEmpty());
}

TEST(RecordingDevice, MeasuresSevenPixelsPerNarrowCharacterAndFourteenPerWideOne) {
    const RecordingDevice device;

    EXPECT_EQ(device.textExtent(L"abc", Font::Window), (CSize{21, 16}));
    EXPECT_EQ(device.textExtent(L"光源", Font::DefaultGui), (CSize{28, 16}));
    EXPECT_EQ(device.textExtent(L"", Font::Window), (CSize{0, 16}));
}

} // namespace
} // namespace quor
