// What is read from sound files, however they are written.
#include "tests/host/ies/web_text.h"

#include <gmock/gmock.h>

#include <cmath>

namespace quor::ies {
namespace {

using testing::ElementsAre;

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

TEST(Reader, TakesEachNumberOfTheHeader) {
    const PhotometricWeb web = sound({.header = "2 3200 1.5 3 1 1 1 .25 -1.5 0.1\n", .factors = "0.5 1.1 36.5\n"});

    EXPECT_EQ(web.lamps, 2);
    EXPECT_EQ(web.lumensPerLamp, 3200);
    EXPECT_EQ(web.photometry, Photometry::C);
    EXPECT_TRUE(web.inFeet);
    EXPECT_EQ(web.width, 0.25);
    EXPECT_EQ(web.length, -1.5);
    EXPECT_EQ(web.height, 0.1);
    EXPECT_EQ(web.ballastFactor, 0.5);
    EXPECT_EQ(web.thirdFactor, 1.1);
    EXPECT_EQ(web.watts, 36.5);
    EXPECT_THAT(web.vertical, ElementsAre(0, 45, 90));
    EXPECT_THAT(web.horizontal, ElementsAre(0));
    EXPECT_EQ(web.symmetry, Symmetry::Axial);
    EXPECT_FALSE(web.tilt.has_value());
    EXPECT_TRUE(web.warnings.empty());
}

TEST(Reader, KnowsMetres) { EXPECT_FALSE(sound({.header = "1 -1 1 3 1 1 2 0 0 0\n"}).inFeet); }

TEST(Reader, HoldsARowPerPlane) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 2 1 2 0 0 0\n", .horizontal = "0 90\n", .candela = "1 2 3 4 5 6\n"});

    EXPECT_THAT(web.candela, ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(web.at(1, 0), 4);
}

struct FactorsOf {
    const char* firstLine;
    double candela;
};

class Factors : public testing::TestWithParam<FactorsOf> {};

// 100 x 2 x 0.5 and, in the editions where it is the ballast-lamp factor, x 0.8.
TEST_P(Factors, AreAppliedAsTheEditionHasThem) {
    const PhotometricWeb web = sound({.label = std::string(GetParam().firstLine) + "\n",
                                      .header = "1 -1 2 3 1 1 2 0 0 0\n",
                                      .factors = "0.5 0.8 10\n"});

    EXPECT_DOUBLE_EQ(web.candela[0], GetParam().candela);
}

INSTANTIATE_TEST_SUITE_P(Editions, Factors,
                         testing::Values(FactorsOf{"free text", 80}, FactorsOf{"IESNA91", 80},
                                         FactorsOf{"IESNA:LM-63-1995", 100}, FactorsOf{"IESNA:LM-63-2002", 100},
                                         FactorsOf{"IES:LM-63-2019", 100}));

TEST(Reader, ThirdFactorThatIsNotAppliedMayBeAnyNumber) { EXPECT_EQ(sound({.factors = "1 -1 10\n"}).thirdFactor, -1); }

TEST(Reader, LampLumensDoNotScaleTheIntensity) {
    EXPECT_EQ(sound({.header = "4 2000 1 3 1 1 2 0 0 0\n"}).candela[0], 100);
}

TEST(Reader, KeepsTheTiltFactorsAndDoesNotApplyThem) {
    const PhotometricWeb web = sound({.tilt = "TILT=INCLUDE\n2\n3\n0 45 90\n1 .9 .8\n"});

    ASSERT_TRUE(web.tilt.has_value());
    EXPECT_EQ(web.tilt->geometry, 2);
    EXPECT_THAT(web.tilt->angles, ElementsAre(0, 45, 90));
    EXPECT_THAT(web.tilt->factors, ElementsAre(1, 0.9, 0.8));
    EXPECT_THAT(web.candela, ElementsAre(100, 80, 20));
}

TEST(Reader, TakesNumbersBehindTiltInTheSameLine) {
    EXPECT_EQ(sound({.tilt = "tilt=include 1 2 0 90 1 1 "}).tilt->angles.size(), 2U);
    EXPECT_EQ(sound({.tilt = "TILT=NONE, "}).lamps, 1);
}

class Layout : public testing::TestWithParam<std::string> {};

TEST_P(Layout, MakesNoDifference) {
    const PhotometricWeb web = soundText(GetParam());

    EXPECT_EQ(web.watts, 10);
    EXPECT_THAT(web.vertical, ElementsAre(0, 45, 90));
    EXPECT_THAT(web.candela, ElementsAre(100, 80, 20));
    EXPECT_EQ(web.keywords.size(), 2U);
    EXPECT_TRUE(web.warnings.empty());
}

const std::string kData = "1 -1 1 3 1 1 2 0 0 0 1 1 10 0 45 90 0 100 80 20";
const std::string kFront = WebText{}.label + WebText{}.tilt;

INSTANTIATE_TEST_SUITE_P(Ways, Layout,
                         testing::Values(WebText{}.text(), kFront + kData, kFront + replaced(kData, " ", "\n"),
                                         kFront + replaced(kData, " ", ", "), kFront + replaced(kData, " ", "\t \t"),
                                         kFront + "\n\n" + replaced(kData, " ", "\n\n") + "\n\n\n",
                                         replaced(WebText{}.text(), "\n", "\r\n"),
                                         replaced(WebText{}.text(), "\n", "\r"), WebText{}.text() + "\x1A",
                                         WebText{}.text() + "\r\n\r\n\x1A", WebText{}.text() + "\x1A left over",
                                         "\xEF\xBB\xBF" + WebText{}.text(),
                                         WebText{.header = "1.0 -1 1. 3.0 1.0 1.0 2.0 0 0 0\n"}.text(),
                                         WebText{.header = "+1 -1 1e0 3e0 +1 1 2 0 0 0\n"}.text(),
                                         WebText{.candela = "1e2 8E+1 2e1\n"}.text()));

TEST(Reader, WarnsOfTextBehindTheData) {
    const PhotometricWeb web = sound({.candela = "100 80 20\n\nend of file\n"});

    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::TrailingText);
    EXPECT_EQ(web.warnings[0].line, 11U);
}

// The counts are 3 and 1 where 4 and 1 are there: 90 is taken as the plane, 0 as an intensity.
TEST(Reader, WarnsOfNumbersThatAreLeftOverAndCountsThem) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 1 1 2 0 0 0\n", .vertical = "0 30 60 90\n", .candela = "4 3 2 1\n"});

    EXPECT_EQ(web.warnings.back().kind, Warning::Kind::SurplusNumbers);
    EXPECT_EQ(web.warnings.back().number, 2U);
    EXPECT_EQ(web.warnings.back().line, 9U);
}

TEST(Reader, CountsTheNumbersThatAreLeftOverUpToTheFirstText) {
    const PhotometricWeb web = sound({.candela = "100 80 20 10\n5 4 end 3\n"});

    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::SurplusNumbers);
    EXPECT_EQ(web.warnings[0].number, 3U);
}

TEST(Reader, DecimalCommasMakeNumbersTooMany) {
    const Warning warning = sound({.candela = "100,5 80,25 20,0\n"}).warnings.at(0);

    EXPECT_EQ(warning.kind, Warning::Kind::SurplusNumbers);
    EXPECT_EQ(warning.number, 3U);
}

TEST(Reader, ANumberBehindOtherTextIsText) {
    EXPECT_EQ(sound({.candela = "100 80 20\nend 1 2\n"}).warnings.at(0).kind, Warning::Kind::TrailingText);
}

TEST(Reader, WarnsOfTheOnlyPlaneThatIsNotAtZero) {
    const PhotometricWeb web = sound({.horizontal = "45\n"});

    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::OnePlaneNotAtZero);
    EXPECT_EQ(web.warnings[0].line, 8U);
    EXPECT_EQ(intensityAt(web, 200, 0), 100);
}

TEST(Reader, WarnsOfVerticalAnglesThatLeaveDirectionsOut) {
    const PhotometricWeb web = sound({.vertical = "10 45\n90\n"});

    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::MissingRows);
    EXPECT_EQ(web.warnings[0].line, 8U);
}

TEST(Reader, WarnsOfASingleVerticalAngle) {
    const PhotometricWeb web = sound({.header = "1 -1 1 1 1 1 2 0 0 0\n", .vertical = "0\n", .candela = "100\n"});

    EXPECT_EQ(web.warnings.at(0).kind, Warning::Kind::MissingRows);
}

TEST(Reader, NegativeZeroIsZero) { EXPECT_FALSE(std::signbit(sound({.candela = "100 80 -0.0\n"}).candela[2])); }

TEST(Reader, WebWithoutAnyLightIsRead) { EXPECT_EQ(maxIntensity(sound({.candela = "0 0 0\n"})), 0); }

TEST(Reader, MaxIntensityIsTheLargestOfAll) { EXPECT_EQ(maxIntensity(sound({.candela = "80 100 20\n"})), 100); }

// Planes at 0, 90, 180 and 270 of one and the same intensity each, 10, 20, 30 and 40.
constexpr const char* kFourPlanes = "10 10 10 20 20 20 30 30 30 40 40 40\n";

TEST(Reader, AddsThePlaneAt360ThatIsMissing) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "0 90 180 270\n", .candela = kFourPlanes});

    EXPECT_THAT(web.horizontal, ElementsAre(0, 90, 180, 270, 360));
    ASSERT_EQ(web.candela.size(), 15U);
    EXPECT_EQ(web.at(4, 2), 10);
    EXPECT_EQ(web.symmetry, Symmetry::None);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::Missing360);
    EXPECT_EQ(web.warnings[0].line, 8U);
}

TEST(Reader, AddsNoPlaneWhereMoreThanOneStepIsMissing) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "0 80 160 240\n", .candela = kFourPlanes});

    EXPECT_EQ(web.horizontal.size(), 4U);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::MissingPlanes);
    EXPECT_EQ(intensityAt(web, 240, 45), 40);
    EXPECT_EQ(intensityAt(web, 300, 45), 0) << "nothing is known there";
}

TEST(Reader, AddsThePlaneAt360BehindUnevenStepsToo) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "0 150 250 345\n", .candela = kFourPlanes});

    EXPECT_EQ(web.horizontal.back(), 360);
}

TEST(Reader, ClosesACircleThatDoesNotBeginAtZero) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "45 135 225 315\n", .candela = kFourPlanes});

    EXPECT_THAT(web.horizontal, ElementsAre(45, 135, 225, 315, 405));
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::Missing360);
    EXPECT_EQ(intensityAt(web, 315, 45), 40);
    EXPECT_EQ(intensityAt(web, 0, 45), 25) << "half way from 315 to 405";
    EXPECT_EQ(intensityAt(web, 45, 45), 10);
    EXPECT_EQ(intensityAt(web, 405, 45), 10);
}

TEST(Reader, ClosesNoCircleOfUnevenStepsThatDoesNotBeginAtZero) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "40 135 225 315\n", .candela = kFourPlanes});

    EXPECT_EQ(web.horizontal.size(), 4U);
    EXPECT_EQ(web.warnings.at(0).kind, Warning::Kind::MissingPlanes);
}

TEST(Reader, KeepsBothPlanesAt0And360EvenIfTheyDiffer) {
    const PhotometricWeb web =
        sound({.header = "1 -1 1 3 4 1 2 0 0 0\n", .horizontal = "0 120 240 360\n", .candela = kFourPlanes});

    EXPECT_EQ(web.horizontal.size(), 4U);
    EXPECT_EQ(intensityAt(web, 0, 45), 10);
    EXPECT_EQ(intensityAt(web, 360, 45), 40);
    EXPECT_TRUE(web.warnings.empty());
}

} // namespace
} // namespace quor::ies
