#include "host/commands/view.h"
#include "host/db/view_records.h"
#include "host/gs/picking.h"
#include "host/sys/system_variables.h"
#include "tests/host/commands/fake_view.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>

namespace quor {
namespace {

using gs::Camera;
using gs::Projection;
using gs::VisualStyle;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

struct ViewCommands : testing::Test {
    ViewCommands() {
        host.front().setView(&view);
        view.box.add({0, 0, 0});
        view.box.add({80, 60, 0});
        Camera camera;
        camera.target = {10, 20, 0};
        camera.height = 600; // a unit is a pixel
        view.setCamera(camera);
    }
    db::Database& drawing() { return host.document().drawing(); }
    bool shows(std::wstring_view text) { return host.front().shows(text); }
    bool isFitted() { return view.camera() == fitted(view.camera(), view.size(), view.extents()); }

    test::FakeView view;
    test::TestSession host{{L"en", true}};
};

TEST_F(ViewCommands, EnterAtZoomShowsEverything) {
    host.run({L"ZOOM", L""});
    EXPECT_TRUE(isFitted());
}

TEST_F(ViewCommands, ZoomExtentsShowsEverything) {
    host.run({L"Z E"});
    EXPECT_TRUE(isFitted());
}

TEST_F(ViewCommands, ZoomExtentsOfAnEmptyDrawingShowsItsLimits) {
    view.box = {};
    drawing().setHeader(L"$LIMMIN", 10, ZrGePoint3d(100, 100, 0));
    drawing().setHeader(L"$LIMMAX", 10, ZrGePoint3d(300, 200, 0));
    host.run({L"ZOOM E"});
    EXPECT_EQ(view.camera().target, ZrGePoint3d(200, 150, 0));
}

TEST_F(ViewCommands, ZoomAllShowsTheLimitsToo) {
    drawing().setHeader(L"$LIMMIN", 10, ZrGePoint3d(0, 0, 0));
    drawing().setHeader(L"$LIMMAX", 10, ZrGePoint3d(1000, 500, 0));
    host.run({L"ZOOM A"});
    EXPECT_EQ(view.camera().target, ZrGePoint3d(500, 250, 0));
}

TEST_F(ViewCommands, ZoomAllFromTheSideShowsWhatIsVisible) {
    view.setCamera(lookingAlong(view.camera(), {0, -1, 0}));
    host.run({L"ZOOM A"});
    EXPECT_TRUE(isFitted());
}

TEST_F(ViewCommands, ZoomPreviousGoesBack) {
    const Camera before = view.camera();
    host.run({L"ZOOM 2X", L"ZOOM P"});
    EXPECT_EQ(view.camera(), before);
}

TEST_F(ViewCommands, ZoomPreviousSaysWhenThereIsNone) {
    host.run({L"ZOOM P", L"ZOOM P"});
    EXPECT_TRUE(shows(L"There is no previous view"));
}

TEST_F(ViewCommands, AFactorWithXIsOfTheCurrentView) {
    host.run({L"ZOOM 2X"});
    EXPECT_DOUBLE_EQ(view.camera().height, 300);
    EXPECT_EQ(view.camera().target, ZrGePoint3d(10, 20, 0));
    host.run({L"ZOOM S .5x"});
    EXPECT_DOUBLE_EQ(view.camera().height, 600);
}

TEST_F(ViewCommands, AFactorAloneIsOfTheWholeDrawing) {
    host.run({L"ZOOM A"});
    const double whole = view.camera().height;
    host.run({L"ZOOM 4X", L"ZOOM 2"});
    EXPECT_NEAR(view.camera().height, whole / 2, 1e-9);
}

TEST_F(ViewCommands, WhatIsNoFactorIsRefused) {
    const Camera before = view.camera();
    host.run({L"ZOOM 0X", L"ZOOM -2", L"ZOOM QQ"});
    EXPECT_EQ(view.camera(), before);
    EXPECT_TRUE(shows(L"\"0X\" is no scale factor"));
    EXPECT_TRUE(shows(L"\"-2\" is no scale factor"));
    EXPECT_TRUE(shows(L"\"QQ\" is no scale factor"));
}

TEST_F(ViewCommands, AWindowFillsThePicture) {
    host.run({L"ZOOM 0,0 40,30"});
    EXPECT_TRUE(view.camera().target.isEqualTo({20, 15, 0}, ZrGeTol(1e-9, 1e-9)));
    EXPECT_NEAR(view.camera().height, 30, 1e-9);
    host.run({L"ZOOM W 0,0 80,6"});
    EXPECT_NEAR(view.camera().height, 60, 1e-9);
}

TEST_F(ViewCommands, AWindowIsGivenInTheUcs) {
    host.run({L"UCS 100,0", L"", L"ZOOM W 0,0 40,30"});
    EXPECT_TRUE(view.camera().target.isEqualTo({120, 15, 0}, ZrGeTol(1e-9, 1e-9)));
}

TEST_F(ViewCommands, AWindowWithoutSizeIsRefused) {
    const Camera before = view.camera();
    host.run({L"ZOOM 5,5 5,5"});
    EXPECT_EQ(view.camera(), before);
    EXPECT_TRUE(shows(L"The corners coincide"));
}

TEST_F(ViewCommands, ZoomCenterTakesAPointAndAHeight) {
    host.run({L"ZOOM C 7,8 25"});
    EXPECT_EQ(view.camera().target, ZrGePoint3d(7, 8, 0));
    EXPECT_EQ(view.camera().height, 25);
    host.run({L"ZOOM C", L"", L"5X"});
    EXPECT_EQ(view.camera().target, ZrGePoint3d(7, 8, 0));
    EXPECT_EQ(view.camera().height, 5);
}

TEST_F(ViewCommands, ZoomRunsInsideOtherCommands) {
    host.run({L"LINE 0,0", L"'ZOOM 2X", L"9,9", L""});
    EXPECT_DOUBLE_EQ(view.camera().height, 300);
    EXPECT_EQ(drawing().entities(drawing().interface().modelSpaceId()).size(), 1);
}

TEST_F(ViewCommands, LookingChangesNothingOfTheDrawing) {
    host.run({L"ZOOM 2X", L"VIEW TOP", L"PLAN W", L"VISUALSTYLE S", L"PROJECTION E"});
    EXPECT_FALSE(drawing().journal().isModified());
    EXPECT_EQ(drawing().journal().undoDepth(), 0);
}

TEST_F(ViewCommands, AStandardViewShowsEverythingFromItsSide) {
    host.run({L"VIEW SWISO"});
    EXPECT_TRUE(view.camera().backward.isEqualTo(ZrGeVector3d(-1, -1, 1).normal()));
    EXPECT_TRUE(isFitted());
    host.run({L"'_VIEW _FRONT"});
    EXPECT_TRUE(view.camera().backward.isEqualTo({0, -1, 0}));
    host.run({L"-VIEW ba"});
    EXPECT_TRUE(view.camera().backward.isEqualTo({0, 1, 0}));
    host.run({L"VIEW RI"});
    EXPECT_TRUE(view.camera().backward.isEqualTo({1, 0, 0}));
}

TEST_F(ViewCommands, ASavedViewComesBack) {
    host.run({L"VIEW SEISO", L"PROJECTION E"});
    const Camera saved = view.camera();
    host.run({L"VIEW S", L"From the door", L"VIEW TOP", L"PROJECTION P", L"VIEW R", L"from the DOOR"});
    EXPECT_TRUE(view.camera().target.isEqualTo(saved.target, ZrGeTol(1e-9, 1e-9)));
    EXPECT_TRUE(view.camera().backward.isEqualTo(saved.backward));
    EXPECT_TRUE(view.camera().up.isEqualTo(saved.up));
    EXPECT_NEAR(view.camera().height, saved.height, 1e-9);
    EXPECT_EQ(view.camera().projection, Projection::Perspective);
}

TEST_F(ViewCommands, SavingAViewIsUndone) {
    host.run({L"VIEW S", L"Door"});
    EXPECT_THAT(db::viewsOf(drawing()), ElementsAre(Field(&db::ViewData::name, L"Door")));
    host.run({L"U"});
    EXPECT_THAT(db::viewsOf(drawing()), IsEmpty());
    host.run({L"REDO", L""});
    EXPECT_THAT(db::viewsOf(drawing()), ElementsAre(Field(&db::ViewData::name, L"Door")));
}

TEST_F(ViewCommands, AViewIsReplacedWhenThePersonSaysSo) {
    host.run({L"VIEW S", L"Door", L"ZOOM 2X", L"VIEW S", L"Door", L"N"});
    EXPECT_THAT(db::viewsOf(drawing()), ElementsAre(Field(&db::ViewData::height, 600)));
    host.run({L"VIEW S", L"Door", L"Y"});
    EXPECT_THAT(db::viewsOf(drawing()), ElementsAre(Field(&db::ViewData::height, 300)));
}

TEST_F(ViewCommands, AViewIsDeleted) {
    host.run({L"VIEW S", L"Door", L"VIEW D", L"door"});
    EXPECT_THAT(db::viewsOf(drawing()), IsEmpty());
    host.run({L"VIEW D", L"door"});
    EXPECT_TRUE(shows(L"There is no view \"door\""));
}

TEST_F(ViewCommands, NamesThatNoViewCanHaveAreRefused) {
    host.run({L"VIEW S", L"a/b", L"VIEW S", L"Top"});
    EXPECT_TRUE(shows(L"\"a/b\" cannot be the name of a view"));
    EXPECT_TRUE(shows(L"\"Top\" is a standard view"));
    EXPECT_THAT(db::viewsOf(drawing()), IsEmpty());
}

TEST_F(ViewCommands, AViewThatIsNotThereIsNotRestored) {
    const Camera before = view.camera();
    host.run({L"VIEW Attic"});
    EXPECT_TRUE(shows(L"There is no view \"Attic\""));
    EXPECT_EQ(view.camera(), before);
}

TEST_F(ViewCommands, ViewsAreListed) {
    host.run({L"VIEW ?", L"VIEW S", L"Door", L"VIEW", L""});
    EXPECT_TRUE(shows(L"Standard views: TOP, BOTTOM, FRONT"));
    EXPECT_TRUE(shows(L"The drawing has no named views"));
    EXPECT_TRUE(shows(L"Views of the drawing: Door"));
}

TEST_F(ViewCommands, TheVisualStyleIsSwitched) {
    host.run({L"VISUALSTYLE S"});
    EXPECT_EQ(view.visualStyle(), VisualStyle::Shaded);
    host.run({L"VS", L""});
    EXPECT_EQ(view.visualStyle(), VisualStyle::Shaded);
    EXPECT_TRUE(shows(L"<Shaded>"));
    host.run({L"VISUALSTYLE I"});
    EXPECT_EQ(view.visualStyle(), VisualStyle::Interior);
    host.run({L"SHADEMODE W"});
    EXPECT_EQ(view.visualStyle(), VisualStyle::Wireframe);
}

TEST_F(ViewCommands, TheProjectionIsSwitched) {
    host.run({L"PROJECTION E"});
    EXPECT_EQ(view.camera().projection, Projection::Perspective);
    host.run({L"PERSPECTIVE P"});
    EXPECT_EQ(view.camera().projection, Projection::Parallel);
}

TEST_F(ViewCommands, PlanLooksStraightAtTheUcs) {
    host.run({L"UCS Z 90", L"PLAN", L""});
    EXPECT_TRUE(view.camera().up.isEqualTo({-1, 0, 0}));
    EXPECT_TRUE(view.camera().backward.isEqualTo({0, 0, 1}));
    host.run({L"PLAN W"});
    EXPECT_TRUE(view.camera().up.isEqualTo({0, 1, 0}));
}

TEST_F(ViewCommands, RegenMakesThePictureAnew) {
    host.run({L"RE"});
    EXPECT_EQ(view.regenerations, 1);
}

TEST_F(ViewCommands, SnapsAreSwitchedOneByOne) {
    const auto modes = [&] { return host.session().variables().number(L"OSMODE"); };
    host.run({L"OSNAP N", L"E", L"C", L""});
    EXPECT_EQ(modes(), gs::kSnapEnd | gs::kSnapCenter);
    EXPECT_TRUE(shows(L"Object snaps: End, Center"));
    host.run({L"OSNAP OFF", L""});
    EXPECT_EQ(modes(), gs::kSnapEnd | gs::kSnapCenter | gs::kSnapOff);
    EXPECT_TRUE(shows(L"Object snaps: End, Center (off)"));
    host.run({L"OS M", L""});
    EXPECT_EQ(modes(), gs::kSnapEnd | gs::kSnapCenter | gs::kSnapMiddle);
}

TEST_F(ViewCommands, WithoutAPictureTheySayThatThereIsNone) {
    host.front().setView(nullptr);
    host.run({L"ZOOM"});
    EXPECT_TRUE(shows(L"This program shows no picture, so ZOOM does nothing here"));
}

TEST(ZoomScales, AreReadAsAPersonTypesThem) {
    const test::TestSession host;
    EXPECT_EQ(commands::readZoomScale(L"2")->value, 2);
    EXPECT_FALSE(commands::readZoomScale(L"2")->ofCurrent);
    EXPECT_TRUE(commands::readZoomScale(L"0.25x")->ofCurrent);
    EXPECT_FALSE(commands::readZoomScale(L"X"));
    EXPECT_FALSE(commands::readZoomScale(L""));
    EXPECT_FALSE(commands::readZoomScale(L"2XP"));
}

} // namespace
} // namespace quor
