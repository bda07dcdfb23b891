// Which direction gets which intensity.
#include "tests/host/ies/made_web.h"
#include "tests/host/ies/web_text.h"

#include <limits>

namespace quor::ies {
namespace {

// A plane's angle plus a tenth of the vertical one: tells every direction of the grid from every other.
double label(double horizontal, double vertical) { return horizontal + vertical / 1000; }

PhotometricWeb ofPlanes(std::vector<double> horizontal, std::vector<double> vertical = {0, 90, 180}) {
    return made(Photometry::C, std::move(vertical), std::move(horizontal), label);
}

TEST(Symmetry, IsToldByTheFirstAndTheLastPlane) {
    EXPECT_EQ(ofPlanes({0}).symmetry, Symmetry::Axial);
    EXPECT_EQ(ofPlanes({0, 90}).symmetry, Symmetry::Quadrants);
    EXPECT_EQ(ofPlanes({0, 90, 180}).symmetry, Symmetry::Mirror0_180);
    EXPECT_EQ(ofPlanes({90, 180, 270}).symmetry, Symmetry::Mirror90_270);
    EXPECT_EQ(ofPlanes({0, 180, 360}).symmetry, Symmetry::None);
    EXPECT_EQ(ofPlanes({0, 45}).symmetry, Symmetry::None);
}

TEST(Symmetry, OfTypesAAndBIsToldByTheFirstPlane) {
    EXPECT_EQ(made(Photometry::B, {-90, 90}, {0, 90}, label).symmetry, Symmetry::MirrorAtZero);
    EXPECT_EQ(made(Photometry::A, {-90, 90}, {0, 90}, label).symmetry, Symmetry::MirrorAtZero);
    EXPECT_EQ(made(Photometry::B, {-90, 90}, {-90, 90}, label).symmetry, Symmetry::None);
    EXPECT_EQ(made(Photometry::B, {-90, 90}, {0}, label).symmetry, Symmetry::None);
}

TEST(Symmetry, PlanesThatLeaveDirectionsOutAreWarnedOf) {
    EXPECT_FALSE(lacksPlanes(ofPlanes({0, 180, 360})));
    EXPECT_FALSE(lacksPlanes(ofPlanes({0})));
    EXPECT_FALSE(lacksPlanes(ofPlanes({90, 180, 270})));
    EXPECT_TRUE(lacksPlanes(ofPlanes({0, 45})));
    EXPECT_TRUE(lacksPlanes(ofPlanes({90, 180})));
    EXPECT_TRUE(lacksPlanes(ofPlanes({180, 270, 360})));
    EXPECT_FALSE(lacksPlanes(made(Photometry::B, {-90, 90}, {0, 90}, label)));
    EXPECT_TRUE(lacksPlanes(made(Photometry::B, {-90, 90}, {0, 60}, label)));
    EXPECT_TRUE(lacksPlanes(made(Photometry::A, {-90, 90}, {-60, 60}, label)));
}

struct Rows {
    Photometry photometry;
    std::vector<double> vertical;
    bool leaveOut;
};

class VerticalAngles : public testing::TestWithParam<Rows> {};

TEST_P(VerticalAngles, ThatLeaveDirectionsOutAreWarnedOf) {
    EXPECT_EQ(lacksRows(made(GetParam().photometry, GetParam().vertical, {0}, label)), GetParam().leaveOut);
}

INSTANTIATE_TEST_SUITE_P(OfTypeC, VerticalAngles,
                         testing::Values(Rows{Photometry::C, {0, 45, 90}, false}, Rows{Photometry::C, {90, 180}, false},
                                         Rows{Photometry::C, {0, 90, 180}, false}, Rows{Photometry::C, {0, 180}, false},
                                         Rows{Photometry::C, {0, 89.9}, true}, Rows{Photometry::C, {0.1, 90}, true},
                                         Rows{Photometry::C, {45, 180}, true}, Rows{Photometry::C, {90, 179}, true},
                                         Rows{Photometry::C, {0, 120}, true}, Rows{Photometry::C, {0}, true},
                                         Rows{Photometry::C, {90}, true}));
INSTANTIATE_TEST_SUITE_P(OfTypesAAndB, VerticalAngles,
                         testing::Values(Rows{Photometry::B, {-90, 0, 90}, false}, Rows{Photometry::A, {0, 90}, false},
                                         Rows{Photometry::A, {-90, 0}, false}, Rows{Photometry::B, {-60, 60}, true},
                                         Rows{Photometry::A, {0}, true}));

TEST(Symmetry, CircleThatLacksItsLastPlaneIsKnown) {
    EXPECT_TRUE(lacksLastPlane(ofPlanes({0, 90, 180, 270})));
    EXPECT_TRUE(lacksLastPlane(ofPlanes({0, 150, 250, 345}))) << "what is missing is less than a step";
    EXPECT_TRUE(lacksLastPlane(ofPlanes({22.5, 112.5, 202.5, 292.5})));
    EXPECT_TRUE(lacksLastPlane(ofPlanes({90, 180, 270, 360})));
    EXPECT_TRUE(lacksLastPlane(ofPlanes({17.143, 68.571, 120, 171.429, 222.857, 274.286, 325.714})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({0, 90, 180, 270, 360})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({0, 80, 160, 240})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({22.5, 112.5, 202.5, 290})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({90, 180, 270})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({45})));
    EXPECT_FALSE(lacksLastPlane(ofPlanes({0, 200}))) << "two planes tell no step";
    EXPECT_FALSE(lacksLastPlane(made(Photometry::B, {-90, 90}, {-90, -45, 0, 45}, label)));
}

TEST(Intensity, OfTheGridIsThatOfTheFile) {
    const PhotometricWeb web = ofPlanes({0, 90, 180, 270, 360});

    EXPECT_DOUBLE_EQ(intensityAt(web, 90, 0), 90);
    EXPECT_DOUBLE_EQ(intensityAt(web, 270, 90), 270.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, 180, 180), 180.18);
}

TEST(Intensity, BetweenIsLinearInBothAngles) {
    // 10 at (0, 0), 20 at (0, 90), 50 at (90, 0), 100 at (90, 90): a third up and a quarter around.
    const PhotometricWeb web = sound({.header = "1 -1 1 2 2 1 2 0 0 0\n",
                                      .vertical = "0 90\n",
                                      .horizontal = "0 90\n",
                                      .candela = "10 20 50 100\n"});

    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 30), 10 + 10.0 / 3);
    EXPECT_DOUBLE_EQ(intensityAt(web, 22.5, 0), 20);
    EXPECT_DOUBLE_EQ(intensityAt(web, 22.5, 30), 0.75 * (10 + 10.0 / 3) + 0.25 * (50 + 50.0 / 3));
}

TEST(Intensity, LeftAndRightOfAnAsymmetricWebStayApart) {
    const PhotometricWeb web = ofPlanes({0, 90, 180, 270, 360});

    EXPECT_DOUBLE_EQ(intensityAt(web, 90, 90), 90.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, 270, 90), 270.09);
}

TEST(Intensity, GoesOnPastAFullTurn) {
    const PhotometricWeb web = ofPlanes({0, 90, 180, 270, 360});

    EXPECT_DOUBLE_EQ(intensityAt(web, 450, 90), 90.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, -90, 90), 270.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, -630, 90), 90.09);
}

TEST(Intensity, OfAnAxialWebIsTheSameAllAround) {
    const PhotometricWeb web = made(Photometry::C, {0, 90, 180}, {0}, label);

    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 90), 0.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, 123.4, 90), 0.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, -77, 45), 0.045);
}

TEST(Intensity, OfQuadrantsIsMirroredAtBothPlanes) {
    const PhotometricWeb web = ofPlanes({0, 30, 90});

    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, 150, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, 210, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, 330, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, 270, 0), 90);
    EXPECT_DOUBLE_EQ(intensityAt(web, 180, 0), 0);
}

TEST(Intensity, Of0To180IsMirroredThere) {
    const PhotometricWeb web = ofPlanes({0, 60, 180});

    EXPECT_DOUBLE_EQ(intensityAt(web, 60, 0), 60);
    EXPECT_DOUBLE_EQ(intensityAt(web, 300, 0), 60);
    EXPECT_DOUBLE_EQ(intensityAt(web, -60, 0), 60);
    EXPECT_DOUBLE_EQ(intensityAt(web, 120, 0), 120) << "front and back differ";
}

TEST(Intensity, Of90To270KeepsItsAnglesAndIsMirroredThere) {
    const PhotometricWeb web = ofPlanes({90, 150, 180, 270});

    EXPECT_DOUBLE_EQ(intensityAt(web, 150, 0), 150);
    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 0), 150);
    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 0), 180);
    EXPECT_DOUBLE_EQ(intensityAt(web, 359, 0), 181);
    EXPECT_DOUBLE_EQ(intensityAt(web, 90, 0), 90);
    EXPECT_DOUBLE_EQ(intensityAt(web, 270, 0), 270);
    EXPECT_DOUBLE_EQ(intensityAt(web, 300, 0), 240);
}

TEST(Intensity, OfTypesAAndBIsMirroredAtZero) {
    const PhotometricWeb web = made(Photometry::B, {-90, 0, 90}, {0, 30, 90}, label);

    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, -30, 0), 30);
    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 90), 30.09);
    EXPECT_DOUBLE_EQ(intensityAt(web, 30, -90), 29.91) << "up and down differ";
    EXPECT_DOUBLE_EQ(intensityAt(web, 120, 0), 0) << "behind the luminaire";
}

TEST(Intensity, OfAFullTypeBWebKeepsLeftAndRight) {
    const PhotometricWeb web =
        made(Photometry::B, {-90, 90}, {-90, -30, 30, 90}, [](double h, double) { return 100 + h; });

    EXPECT_DOUBLE_EQ(intensityAt(web, -30, 0), 70);
    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 0), 130);
    EXPECT_DOUBLE_EQ(intensityAt(web, -60, 0), 40);
    EXPECT_DOUBLE_EQ(intensityAt(web, 300, 0), 40);
}

TEST(Intensity, OfAnUplightStaysAbove) {
    const PhotometricWeb web = ofPlanes({0}, {90, 135, 180});

    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 135), 0.135);
    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 180), 0.18);
    EXPECT_EQ(intensityAt(web, 0, 89.9), 0);
    EXPECT_EQ(intensityAt(web, 0, 45), 0);
    EXPECT_EQ(intensityAt(web, 0, 0), 0);
}

TEST(Intensity, OfADownlightEndsWithItsAngles) {
    const PhotometricWeb web = sound({.candela = "100 80 20\n"});

    EXPECT_EQ(intensityAt(web, 0, 90), 20);
    EXPECT_EQ(intensityAt(web, 0, 90.1), 0);
    EXPECT_EQ(intensityAt(web, 0, 180), 0);
    EXPECT_EQ(intensityAt(web, 0, -1), 0);
}

TEST(Intensity, OfNoDirectionIsZero) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const PhotometricWeb web = ofPlanes({0, 90, 180, 270, 360});

    EXPECT_EQ(intensityAt(web, nan, 45), 0);
    EXPECT_EQ(intensityAt(web, infinity, 45), 0);
    EXPECT_EQ(intensityAt(web, 45, nan), 0);
    EXPECT_EQ(intensityAt(web, 45, -infinity), 0);
}

TEST(Intensity, OfAWebThatWasNeverReadIsZero) {
    EXPECT_EQ(intensityAt(PhotometricWeb{}, 0, 0), 0);
    EXPECT_EQ(maxIntensity(PhotometricWeb{}), 0);
    EXPECT_EQ(luminousFlux(PhotometricWeb{}), 0);
}

} // namespace
} // namespace quor::ies
