// Answering points with the mouse.
#include "desktop/front/desktop_front_end.h"
#include "host/document.h"
#include "host/sys/system_variables.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

#include <cmath>

namespace quor::desktop::test {
namespace {

struct Segment {
    ZrGePoint3d start;
    ZrGePoint3d end;
};

Segment lastLine(Screen& screen) {
    const ZrDbObjectId id = screen.objects().back();
    return screen.person().sees([&] {
        const ZrDbObjectPointer<ZrDbLine> line(id, ZrDb::kForRead);
        return Segment{line->startPoint(), line->endPoint()};
    });
}

TEST(PointsTest, TwoClicksDrawALine) {
    withScreen([](Screen& screen) {
        screen.types(L"LINE");
        screen.clicks({500, 300});
        screen.clicks({500, 200});
        screen.types(L"");
        EXPECT_TRUE(lastLine(screen).start.isEqualTo({10, 0, 0}));
        EXPECT_TRUE(lastLine(screen).end.isEqualTo({10, 10, 0}));
    });
}

TEST(PointsTest, AQuickSecondClickIsAPointAsWell) {
    withScreen([](Screen& screen) {
        screen.types(L"LINE");
        screen.doubleClicks({500, 300}, Qt::LeftButton);
        screen.types(L"");
        EXPECT_EQ(screen.objects().size(), 1U);
    });
}

TEST(PointsTest, PointsLieInThePlaneOfTheUcs) {
    withScreen([](Screen& screen) {
        screen.types({L"UCS", L"0,0,5", L"", L"LINE"});
        screen.clicks({500, 300});
        screen.types({L"0,0,0", L""});
        EXPECT_TRUE(lastLine(screen).start.isEqualTo({10, 0, 5}));
    });
}

TEST(PointsTest, WhereNoPointIsAskedForAClickAnswersNothing) {
    withScreen([](Screen& screen) {
        screen.types({L"POINTLIGHT", L"0,0,0"});
        const std::optional<Question::Kind> asked = screen.question();
        EXPECT_EQ(asked, Question::Kind::Keyword);
        screen.clicks({500, 300});
        EXPECT_EQ(screen.question(), asked);
    });
}

TEST(PointsTest, TheLightMovesWithTheCursorWhileItIsPlaced) {
    withScreen([](Screen& screen) {
        screen.types(L"POINTLIGHT");
        screen.moves({450, 250});
        const auto dragged = [&] {
            return screen.person().sees([&] {
                const Question* const open = screen.person().program().front().question();
                return zrrxCast<ZrDbLight>(open->dragged)->position();
            });
        };
        EXPECT_TRUE(dragged().isEqualTo({5, 5, 0}));
        screen.moves({300, 250});
        EXPECT_TRUE(dragged().isEqualTo({-10, 5, 0}));
    });
}

TEST(PointsTest, AClickEndsTheDrag) {
    withScreen([](Screen& screen) {
        screen.types(L"POINTLIGHT");
        screen.moves({450, 250});
        screen.clicks({420, 280});
        screen.types(L"");
        const ZrDbObjectId id = screen.objects().back();
        const ZrGePoint3d position =
            screen.person().sees([&] { return ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead)->position(); });
        EXPECT_TRUE(position.isEqualTo({2, 2, 0}));
    });
}

TEST(PointsTest, CoordinatesCanBeTypedInTheMiddleOfADrag) {
    withScreen([](Screen& screen) {
        screen.types(L"POINTLIGHT");
        screen.moves({450, 250});
        screen.types({L"1,2,3", L""});
        const ZrDbObjectId id = screen.objects().back();
        const ZrGePoint3d position =
            screen.person().sees([&] { return ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead)->position(); });
        EXPECT_TRUE(position.isEqualTo({1, 2, 3}));
    });
}

// How many places between two of the picture look otherwise than before: a dashed line shows in some of them.
int changedBetween(const QImage& before, const QImage& after, QPoint from, QPoint to) {
    constexpr int kPlaces = 60;
    int changed = 0;
    for (int i = 10; i < kPlaces - 10; ++i) {
        const QPoint place = from + (to - from) * i / kPlaces;
        changed += before.pixel(place) != after.pixel(place) ? 1 : 0;
    }
    return changed;
}

TEST(DragTest, EnterPlacesTheLightAtTheOriginAndTheTargetHangsOnIt) {
    withScreen([](Screen& screen) {
        const auto seen = [&] { return screen.person().sees([&] { return screen.viewport().grab().toImage(); }); };
        screen.types(L"SPOTLIGHT");
        screen.moves({450, 250});
        screen.types(L"");
        const auto base = screen.person().sees([&] { return screen.person().program().front().question()->base; });
        EXPECT_EQ(base, ZrGePoint3d(0, 0, 0));
        screen.moves({150, 500});
        const QImage elsewhere = seen();
        screen.moves({700, 100});
        EXPECT_GT(changedBetween(elsewhere, seen(), {400, 300}, {700, 100}), 5);
    });
}

TEST(DragTest, ATargetOnItsSpotlightIsRefusedAndAskedForAgain) {
    withScreen([](Screen& screen) {
        screen.types(L"SPOTLIGHT");
        screen.clicks({420, 280});
        screen.clicks({420, 280});
        EXPECT_TRUE(screen.person().screen().contains("**聚光灯的光源和目标不能相同。**"));
        EXPECT_EQ(screen.question(), Question::Kind::Point);
        screen.clicks({500, 280});
        EXPECT_EQ(screen.question(), Question::Kind::Keyword);
    });
}

TEST(DragTest, EscMakesNoLight) {
    withScreen([](Screen& screen) {
        screen.types(L"POINTLIGHT");
        screen.moves({450, 250});
        screen.presses(Qt::Key_Escape);
        EXPECT_EQ(screen.question(), Question::Kind::Command);
        EXPECT_TRUE(screen.objects().empty());
    });
}

class SnapsTest : public testing::Test {
protected:
    // A line from (0, 0) to (20, 10) stands there; where does another one begin that is clicked at a place?
    static ZrGePoint3d clicked(Screen& screen, const ZrGePoint3d& nearby) {
        screen.types(L"LINE");
        const QPoint place = screen.at(nearby) + QPoint(4, 3);
        screen.moves(place);
        screen.clicks(place);
        screen.types({L"-20,-20", L""});
        return lastLine(screen).start;
    }
    static void draw(Screen& screen) { screen.types({L"LINE", L"0,0", L"20,10", L""}); }
};

TEST_F(SnapsTest, NearAnEndItIsTheEnd) {
    withScreen([](Screen& screen) {
        draw(screen);
        EXPECT_EQ(clicked(screen, {20, 10, 0}), ZrGePoint3d(20, 10, 0));
    });
}

TEST_F(SnapsTest, NearTheMiddleItIsTheMiddle) {
    withScreen([](Screen& screen) {
        draw(screen);
        EXPECT_EQ(clicked(screen, {10, 5, 0}), ZrGePoint3d(10, 5, 0));
    });
}

TEST_F(SnapsTest, OnACircleItIsTheCenter) {
    withScreen([](Screen& screen) {
        const std::string circle =
            "0\nSECTION\n2\nENTITIES\n0\nCIRCLE\n5\nA1\n8\n0\n10\n3\n20\n4\n30\n0\n40\n10\n0\nENDSEC\n0\nEOF\n";
        const gs::Camera fromAbove = screen.camera();
        screen.person().does([&] {
            auto drawing = db::Database::fromBytes(circle);
            screen.person().program().session().documents().adopt(std::move(drawing).value(), {});
        });
        screen.looksWith(fromAbove);
        screen.types(L"LINE");
        const QPoint place = screen.at({3 + 10 * std::sqrt(0.5), 4 + 10 * std::sqrt(0.5), 0});
        screen.moves(place);
        screen.clicks(place);
        screen.types({L"-20,-20", L""});
        EXPECT_EQ(lastLine(screen).start, ZrGePoint3d(3, 4, 0));
    });
}

TEST_F(SnapsTest, OnAFilledFaceItIsWhereTheFaceIsSeen) {
    withScreen([](Screen& screen) {
        screen.types({L"3DFACE", L"-20,-20,5", L"20,-20,5", L"20,20,5", L"-20,20,5", L"", L"VISUALSTYLE", L"_Shaded"});
        const ZrGePoint3d start = clicked(screen, {7, 3, 5});
        EXPECT_NEAR(start.z, 5, 1e-3);
    });
}

TEST_F(SnapsTest, F3SwitchesThemOffAndOn) {
    withScreen([](Screen& screen) {
        draw(screen);
        screen.presses(Qt::Key_F3);
        EXPECT_FALSE(screen.viewport().areSnapsOn());
        EXPECT_NE(clicked(screen, {20, 10, 0}), ZrGePoint3d(20, 10, 0));
        screen.presses(Qt::Key_F3);
        EXPECT_TRUE(screen.viewport().areSnapsOn());
        EXPECT_EQ(clicked(screen, {0, 0, 0}), ZrGePoint3d(0, 0, 0));
    });
}

TEST(OrthoTest, F8KeepsPointsOnTheAxes) {
    withScreen([](Screen& screen) {
        screen.presses(Qt::Key_F8);
        screen.types({L"LINE", L"0,0"});
        screen.clicks({500, 270});
        screen.types(L"");
        EXPECT_TRUE(lastLine(screen).end.isEqualTo({10, 0, 0}));
        screen.presses(Qt::Key_F8);
        EXPECT_FALSE(screen.viewport().isOrthoOn());
    });
}

TEST(CursorTest, TellsThePointUnderIt) {
    withScreen([](Screen& screen) {
        std::vector<ZrGePoint3d> told;
        screen.person().does([&] {
            QObject::connect(&screen.viewport(), &Viewport::cursorMoved, &screen.viewport(),
                             [&](const ZrGePoint3d& world) { told.push_back(world); });
        });
        screen.moves({410, 280});
        ASSERT_EQ(told.size(), 1U);
        EXPECT_TRUE(told.front().isEqualTo({1, 2, 0}));
    });
}

} // namespace
} // namespace quor::desktop::test
