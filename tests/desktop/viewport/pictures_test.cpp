// Pictures of the drawing area for people to look at, and what must be seen on them.
#include "desktop/front/desktop_front_end.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

gs::Camera fromAside() {
    gs::Camera camera = gs::lookingAlong(gs::Camera(), {1, -1.6, 1});
    camera.height = 60;
    camera.target = {4, 4, 2};
    return camera;
}

// A box of faces with a line beside it.
void drawRoom(Screen& screen) {
    screen.types({L"3DFACE", L"-15,-10,0", L"15,-10,0", L"15,10,0", L"-15,10,0", L""});
    screen.types({L"3DFACE", L"-15,10,0", L"15,10,0", L"15,10,12", L"-15,10,12", L""});
    screen.types({L"3DFACE", L"-15,-10,0", L"-15,10,0", L"-15,10,12", L"-15,-10,12", L""});
    screen.types({L"LINE", L"-5,-5,0", L"8,-5,0", L"8,4,0", L""});
}

TEST(ViewportPictures, ACommandPromptWithSelectionAndHover) {
    withScreen([](Screen& screen) {
        drawRoom(screen);
        screen.types({L"SPOTLIGHT", L"0,0,9", L"4,-2,0", L"", L"POINTLIGHT", L"-10,5,8", L""});
        screen.looksWith(fromAside());
        screen.clicks(screen.at({0, 0, 9}));
        screen.moves(screen.at({8, 0, 0}));
        screen.waitsUntilStill();
        screen.takesPicture("viewport-selection");
        EXPECT_EQ(screen.selected().size(), 1U);
    });
}

TEST(ViewportPictures, ShadedByTheLightsOfTheDrawing) {
    withScreen([](Screen& screen) {
        drawRoom(screen);
        screen.types({L"SPOTLIGHT", L"0,0,9", L"4,-2,0", L"", L"POINTLIGHT", L"-10,5,8", L""});
        screen.looksWith(fromAside());
        screen.person().does([&] { screen.viewport().setVisualStyle(gs::VisualStyle::Shaded); });
        screen.waitsUntilStill();
        screen.takesPicture("viewport-shaded");
        EXPECT_EQ(screen.person().sees([&] { return screen.viewport().visualStyle(); }), gs::VisualStyle::Shaded);
    });
}

TEST(ViewportPictures, ADraggedSpotWithItsConeAndSnap) {
    withScreen([](Screen& screen) {
        drawRoom(screen);
        screen.looksWith(fromAside());
        screen.types({L"SPOTLIGHT", L"0,0,9"});
        screen.moves(screen.at({8, 4, 0}) + QPoint(3, 2));
        screen.waitsUntilStill();
        screen.takesPicture("viewport-drag");
        EXPECT_TRUE(screen.person().sees([&] { return screen.person().program().front().isDragging(); }));
    });
}

TEST(ViewportPictures, AWindowAndACrossing) {
    withScreen([](Screen& screen) {
        drawRoom(screen);
        screen.clicks({250, 180});
        screen.moves({560, 420});
        screen.waitsUntilStill();
        screen.takesPicture("viewport-window");
        screen.presses(Qt::Key_Escape);
        screen.clicks({600, 450});
        screen.moves({300, 160});
        screen.waitsUntilStill();
        screen.takesPicture("viewport-crossing");
        EXPECT_TRUE(screen.selected().empty());
    });
}

TEST(ViewportPictures, TheLightThemeAndARubberBand) {
    withScreen([](Screen& screen) {
        screen.types({L"COLORTHEME", L"1"});
        drawRoom(screen);
        screen.types({L"LINE", L"-8,-3"});
        screen.moves(screen.at({4, 6, 0}));
        screen.waitsUntilStill();
        screen.takesPicture("viewport-light-theme");
        screen.types({L"", L"ERASE"});
        screen.clicks(screen.at({2, -5, 0}));
        screen.moves(screen.at({8, 1, 0}));
        screen.waitsUntilStill();
        screen.takesPicture("viewport-light-erase");
        EXPECT_EQ(screen.question(), Question::Kind::Selection);
    });
}

} // namespace
} // namespace quor::desktop::test
