#include "host/gs/initial_camera.h"

#include "host/gs/standard_views.h"
#include "host/gs/view_record.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

#include <limits>

namespace quor::gs {
namespace {

// Looks at 100,200 from above, 50 units high.
std::string viewport(const std::string& direction, const std::string& height, const std::string& more = {}) {
    return "0\nTABLE\n2\nVPORT\n70\n1\n0\nVPORT\n2\n*Active\n70\n0\n12\n100\n22\n200\n" + direction +
           "17\n0\n27\n0\n37\n0\n40\n" + height + "\n" + more + "0\nENDTAB\n";
}
const std::string kFromAbove = "16\n0\n26\n0\n36\n1\n";
const std::string kFromTheFront = "16\n0\n26\n-1\n36\n0\n";

std::unique_ptr<db::Database> drawingWith(const std::string& tables) {
    return db::drawings::parsed(db::drawings::drawing("AC1009", {{}, {}, tables, {}, {}}));
}

Box boxAt(double x, double y) {
    Box box;
    box.add({x, y, 0});
    box.add({x + 10, y + 10, 0});
    return box;
}

TEST(InitialCamera, IsThatOfTheActiveViewport) {
    const Camera camera = cameraOf(*drawingWith(viewport(kFromAbove, "50")));
    EXPECT_EQ(camera.target, ZrGePoint3d(100, 200, 0));
    EXPECT_EQ(camera.backward, ZrGeVector3d::kZAxis);
    EXPECT_EQ(camera.up, ZrGeVector3d::kYAxis);
    EXPECT_EQ(camera.height, 50);
    EXPECT_EQ(camera.projection, Projection::Parallel);
}

TEST(InitialCamera, TheMiddleOfThePictureIsToldAlongItsAxes) {
    const Camera camera = cameraOf(*drawingWith(viewport(kFromTheFront, "50")));
    EXPECT_TRUE(camera.up.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_TRUE(camera.target.isEqualTo({100, 0, 200}));
}

TEST(InitialCamera, ATwistTurnsWhatIsSeenCounterclockwise) {
    const Camera camera = cameraOf(*drawingWith(viewport(kFromAbove, "50", "51\n90\n")));
    EXPECT_TRUE(camera.up.isEqualTo(ZrGeVector3d::kXAxis));
    EXPECT_TRUE(camera.right().isEqualTo(-ZrGeVector3d::kYAxis));
}

TEST(InitialCamera, AViewportMayBeInPerspective) {
    EXPECT_EQ(cameraOf(*drawingWith(viewport(kFromAbove, "50", "71\n1\n"))).projection, Projection::Perspective);
}

TEST(InitialCamera, WithoutAUsableViewportItLooksFromAbove) {
    EXPECT_EQ(cameraOf(*drawingWith({})), Camera());
    EXPECT_EQ(cameraOf(*drawingWith(viewport(kFromAbove, "0"))), Camera());
    EXPECT_EQ(cameraOf(*drawingWith(viewport("16\n0\n26\n0\n36\n0\n", "50"))), Camera());
}

TEST(InitialCamera, ShowsTheDrawingWhereTheViewportDoes) {
    const auto drawing = drawingWith(viewport(kFromAbove, "50"));
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, boxAt(95, 195)), cameraOf(*drawing));
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, Box()), cameraOf(*drawing));
}

TEST(InitialCamera, ShowsAllWhereTheViewportShowsNothing) {
    const auto drawing = drawingWith(viewport(kFromAbove, "50"));
    const Box elsewhere = boxAt(5000, 5000);
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, elsewhere), fitted(cameraOf(*drawing), {800, 600}, elsewhere));
}

TEST(InitialCamera, ShowsAllWhereTheViewportShowsACorner) {
    const auto drawing = drawingWith(viewport(kFromAbove, "50"));
    Box large = boxAt(100, 200);
    large.add({5000, 5000, 0});
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, large), fitted(cameraOf(*drawing), {800, 600}, large));
}

TEST(InitialCamera, StaysInARoomWhereTheEyeIsInIt) {
    const auto drawing = drawingWith(viewport(kFromTheFront, "50", "71\n1\n"));
    Box room;
    room.add({-1000, -1000, 0});
    room.add({1000, 1000, 400});
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, room), cameraOf(*drawing));
}

TEST(InitialCamera, ShowsAllWhereItWouldBeASpeck) {
    const auto drawing = drawingWith(viewport(kFromAbove, "1000000"));
    EXPECT_LT(initialCamera(*drawing, {800, 600}, boxAt(100, 200)).height, 20);
}

TEST(InitialCamera, ASheetIsShownWholeFromAbove) {
    const auto drawing = drawingWith(viewport(kFromTheFront, "50"));
    drawing->setModelTab(false);
    EXPECT_EQ(initialCamera(*drawing, {800, 600}, boxAt(95, 195)), fitted(Camera(), {800, 600}, boxAt(95, 195)));
}

TEST(ViewRecords, GiveTheCameraBackThatTheyWereMadeOf) {
    Camera camera;
    camera.target = {1, 2, 3};
    camera.height = 40;
    camera.projection = Projection::Perspective;
    camera = orbited(lookingAlong(camera, {3, -2, 1}), {5, 5, 5}, 0.3, 0.2);
    camera.up.rotateBy(0.7, camera.backward);
    const Camera back = cameraOf(viewOf(camera, 1.5)).value();
    EXPECT_TRUE(back.backward.isEqualTo(camera.backward));
    EXPECT_TRUE(back.up.isEqualTo(camera.up));
    EXPECT_EQ(back.target, camera.target);
    EXPECT_EQ(back.height, camera.height);
    EXPECT_EQ(back.projection, camera.projection);
    EXPECT_EQ(viewOf(camera, 1.5).width, 60);
}

TEST(ViewRecords, NumbersThatAreNoneMakeNoCamera) {
    db::ViewData view = viewOf(Camera(), 1);
    view.twistDegrees = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(cameraOf(view));
}

TEST(StandardViews, AreFoundByNameWithoutRegardToCase) {
    EXPECT_EQ(findStandardView(L"swIso")->backward, ZrGeVector3d(-1, -1, 1));
    EXPECT_EQ(findStandardView(L"SW"), nullptr);
    EXPECT_EQ(standardViews().size(), 10);
}

} // namespace
} // namespace quor::gs
