#include "host/ui/painting.h"

#include "host/ui/recording_device.h"
#include "sdk/ui/window.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ui::RecordingDevice;

// Fills its background, and focus rectangles are easy to tell from fills.
class Painted : public CWnd {
public:
    explicit Painted(COLORREF background) : background_(background) {}
    bool invalidates = false;

private:
    bool OnEraseBkgnd(CDC& dc) override {
        dc.FillSolidRect(GetClientRect(), background_);
        return true;
    }
    void OnPaint(CDC& dc) override {
        dc.DrawFocusRect(GetClientRect());
        if (invalidates)
            Invalidate();
    }

    COLORREF background_;
};

class Painting : public testing::Test {
protected:
    Painting() {
        top.Create({.style = WS_VISIBLE, .rect = {100, 200, 200, 250}});
        first.Create({.parent = &top, .style = WS_VISIBLE, .rect = {10, 20, 30, 30}});
        second.Create({.parent = &top, .style = WS_VISIBLE, .rect = {40, 20, 50, 30}});
    }

    RecordingDevice device;
    Painted top{RGB(1, 2, 3)};
    Painted first{RGB(4, 5, 6)};
    Painted second{RGB(7, 8, 9)};
};

TEST_F(Painting, TheBackgroundComesFirstThenTheWindowThenItsChildrenInTheirPlaces) {
    ui::paint(top, device);

    EXPECT_THAT(device.lines(),
                ElementsAre(L"fill 0,0,100,50 #010203", L"focus 0,0,100,50", L"enter 10,20,30,30",
                            L"fill 0,0,20,10 #040506", L"focus 0,0,20,10", L"leave", L"enter 40,20,50,30",
                            L"fill 0,0,10,10 #070809", L"focus 0,0,10,10", L"leave"));
}

TEST_F(Painting, AWindowAloneIsPaintedInItsOwnCoordinates) {
    ui::paint(first, device);

    EXPECT_THAT(device.lines(), ElementsAre(L"fill 0,0,20,10 #040506", L"focus 0,0,20,10"));
}

TEST_F(Painting, ChildrenOfChildrenArePaintedInThem) {
    CWnd inner;
    inner.Create({.parent = &first, .style = WS_VISIBLE, .rect = {1, 1, 2, 2}});

    ui::paint(first, device);

    EXPECT_THAT(device.lines(), ElementsAre(L"fill 0,0,20,10 #040506", L"focus 0,0,20,10", L"enter 1,1,2,2", L"leave"));
}

TEST_F(Painting, HiddenChildrenAreNotPainted) {
    first.ShowWindow(false);
    second.ShowWindow(false);

    ui::paint(top, device);

    EXPECT_THAT(device.lines(), ElementsAre(L"fill 0,0,100,50 #010203", L"focus 0,0,100,50"));
}

TEST_F(Painting, AWindowThatWasPaintedNeedsNoPaint) {
    ui::paint(top, device);

    EXPECT_FALSE(top.needsPaint());
    EXPECT_FALSE(first.needsPaint());
}

TEST_F(Painting, AHiddenChildStillNeedsPaint) {
    first.ShowWindow(false);

    ui::paint(top, device);

    EXPECT_TRUE(first.needsPaint());
}

TEST_F(Painting, AWindowThatChangesWhileItIsPaintedNeedsPaintAgain) {
    first.invalidates = true;

    ui::paint(top, device);

    EXPECT_TRUE(first.needsPaint());
}

TEST_F(Painting, AnObjectWithoutAWindowIsNotPainted) {
    Painted none(RGB(0, 0, 0));

    ui::paint(none, device);

    EXPECT_THAT(device.lines(), IsEmpty());
}

} // namespace
} // namespace quor
