// Several drawings, the theme, and that nothing is rendered for nothing.
#include "host/db/database.h"
#include "host/document.h"
#include "host/sys/system_variables.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

QImage seen(Screen& screen) {
    screen.waitsUntilStill();
    return screen.person().sees([&] { return screen.viewport().grab().toImage(); });
}

std::size_t rendered(Screen& screen) {
    (void)seen(screen);
    return screen.person().sees([&] { return screen.viewport().renderCount(); });
}

TEST(DocumentsTest, EachDrawingKeepsItsCamera) {
    withScreen([](Screen& screen) {
        Document* first =
            screen.person().sees([&] { return screen.person().program().session().documents().current(); });
        const gs::Camera camera = screen.camera();
        screen.types(L"NEW");
        EXPECT_NE(screen.camera(), camera);
        screen.person().does([&] { screen.person().program().session().documents().setCurrent(first); });
        EXPECT_EQ(screen.camera(), camera);
    });
}

// Windows are painted while its picture is prepared.
TEST(DocumentsTest, ALargeDrawingIsShownWholeFromTheStart) {
    std::string lines;
    for (int y = 0; y < 20'000; ++y)
        lines += "0\nLINE\n8\n0\n10\n0\n20\n" + std::to_string(y) + "\n11\n9\n21\n" + std::to_string(y) + "\n";
    withScreen([&](Screen& screen) {
        screen.person().does([&] {
            auto drawing = db::Database::fromBytes("0\nSECTION\n2\nENTITIES\n" + lines + "0\nENDSEC\n0\nEOF\n");
            screen.person().program().session().documents().adopt(std::move(drawing).value(), "/large.dxf");
        });
        screen.waitsUntilStill();
        EXPECT_NEAR(screen.camera().target.y, 10'000, 1);
        EXPECT_GT(screen.camera().height, 20'000);
    });
}

TEST(DocumentsTest, AnEmptyDrawingIsShownAfterAFullOne) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"-20,0", L"20,0", L""});
        const QPoint there = screen.at({10, 0, 0});
        const QRgb line = seen(screen).pixel(there);
        screen.types(L"NEW");
        EXPECT_NE(seen(screen).pixel(there), line);
    });
}

TEST(DocumentsTest, WithoutADrawingThereIsTheBackground) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"-20,0", L"20,0", L"", L"UNDO", L"1"});
        screen.person().does([&] {
            DocumentManager& documents = screen.person().program().session().documents();
            documents.close(*documents.current());
        });
        EXPECT_FALSE(seen(screen).isNull());
        screen.clicks({100, 100});
        screen.drags({100, 100}, {200, 200}, Qt::MiddleButton);
        screen.presses(Qt::Key_Home);
        screen.turnsWheel({100, 100}, 1);
        EXPECT_TRUE(screen.person().sees([&] { return screen.viewport().extents().isEmpty(); }));
        EXPECT_FALSE(screen.person().sees([&] { return screen.viewport().backToPreviousCamera(); }));
    });
}

TEST(DocumentsTest, ClosingADrawingForgetsIt) {
    withScreen([](Screen& screen) {
        screen.types(L"NEW");
        screen.person().does([&] {
            DocumentManager& documents = screen.person().program().session().documents();
            documents.close(*documents.current());
        });
        screen.types({L"LINE", L"-20,0", L"20,0", L""});
        EXPECT_EQ(screen.objects().size(), 1U);
        EXPECT_FALSE(seen(screen).isNull());
    });
}

TEST(ThemeTest, AnotherThemeIsSeenAtOnce) {
    withScreen([](Screen& screen) {
        screen.types({L"COLORTHEME", L"0"});
        const QRgb dark = seen(screen).pixel(100, 100);
        screen.types({L"COLORTHEME", L"1"});
        const QRgb light = seen(screen).pixel(100, 100);
        EXPECT_LT(qGray(dark), 80);
        EXPECT_GT(qGray(light), 180);
    });
}

TEST(RenderingTest, MovingTheCursorOverNothingRendersNothing) {
    withScreen([](Screen& screen) {
        const std::size_t before = rendered(screen);
        screen.moves({100, 100});
        screen.moves({110, 100});
        EXPECT_EQ(rendered(screen), before);
    });
}

TEST(RenderingTest, MovingTheCursorOverAnObjectRendersNothingEither) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"-20,0", L"20,0", L""});
        const std::size_t before = rendered(screen);
        screen.moves(screen.at({10, 0, 0}));
        EXPECT_EQ(rendered(screen), before);
    });
}

TEST(RenderingTest, WhatIsDrawnIsSeen) {
    withScreen([](Screen& screen) {
        const std::size_t before = rendered(screen);
        screen.types({L"LINE", L"-20,0", L"20,0", L""});
        EXPECT_GT(rendered(screen), before);
    });
}

TEST(RenderingTest, AMovementEndsWithAFinePicture) {
    withScreen([](Screen& screen) {
        const std::size_t before = rendered(screen);
        screen.person().does([&] {
            screen.viewport().zoomExtents();
            screen.viewport().repaint();
        });
        screen.turnsWheel({100, 100}, 1);
        EXPECT_GT(rendered(screen), before);
        const std::size_t still = rendered(screen);
        EXPECT_EQ(rendered(screen), still);
    });
}

TEST(RenderingTest, TheStyleIsKeptForEachDrawing) {
    withScreen([](Screen& screen) {
        screen.person().does([&] { screen.viewport().setVisualStyle(gs::VisualStyle::Shaded); });
        screen.types(L"NEW");
        EXPECT_EQ(screen.person().sees([&] { return screen.viewport().visualStyle(); }), gs::VisualStyle::Wireframe);
    });
}

} // namespace
} // namespace quor::desktop::test
