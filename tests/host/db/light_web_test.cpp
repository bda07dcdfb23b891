// The photometric web of a light: read when it is set, kept in the drawing.
#include "host/db/light_web.h"
#include "host/sys/path_text.h"
#include "host/sys/utf8.h"
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace quor::db {
namespace {

using namespace drawings;
using testing::Contains;
using testing::HasSubstr;

// 2200 cd straight down, axial.
ZrString fileOf(const char* name) { return textOf(std::filesystem::path(QUOR_TEST_DATA) / "ies" / name); }

struct LightWeb : testing::Test {
    LightWeb() { light.setLightType(DrawableType::kWebLight); }

    ZrDbLight light;
    ZrString reason;
};

TEST_F(LightWeb, IsReadWhenItsFileIsSet) {
    EXPECT_EQ(light.setWebFile(fileOf("dl_point_opening.ies"), &reason), Quor::eOk);
    EXPECT_EQ(light.webFile(), fileOf("dl_point_opening.ies"));
    EXPECT_NEAR(light.webFlux(), 906.6, 0.05);
    EXPECT_EQ(light.webSymmetry(), WebSymmetry::kAxial);
    EXPECT_TRUE(reason.empty());
}

struct SymmetryOfAFile {
    const char* file;
    WebSymmetry symmetry;
};

struct LightWebSymmetry : testing::TestWithParam<SymmetryOfAFile> {};

TEST_P(LightWebSymmetry, IsThatOfTheFile) {
    ZrDbLight light;
    light.setLightType(DrawableType::kWebLight);
    light.setWebFile(fileOf(GetParam().file));
    EXPECT_EQ(light.webSymmetry(), GetParam().symmetry);
}

INSTANTIATE_TEST_SUITE_P(Files, LightWebSymmetry,
                         testing::Values(SymmetryOfAFile{"gc_sterilray.ies", WebSymmetry::kNone},
                                         SymmetryOfAFile{"dl_round_opening.ies", WebSymmetry::kAxial},
                                         SymmetryOfAFile{"pp_tilt_include_v19.ies", WebSymmetry::kQuadrants},
                                         SymmetryOfAFile{"pp_LLIA001477-003.ies", WebSymmetry::kMirror0_180},
                                         SymmetryOfAFile{"pp_type_a_symmetric.ies", WebSymmetry::kMirrorAtZero}));

TEST_F(LightWeb, AFileThatIsMissingIsRefusedWithTheReason) {
    EXPECT_EQ(light.setWebFile(L"/no/such/lamp.ies", &reason), Quor::eFileNotFound);
    EXPECT_THAT(reason, HasSubstr(L"/no/such/lamp.ies"));
    EXPECT_TRUE(light.webFile().empty());
}

TEST_F(LightWeb, AFolderIsRefusedWithTheReason) {
    EXPECT_EQ(light.setWebFile(fileOf(""), &reason), Quor::eFileAccessErr);
    EXPECT_FALSE(reason.empty());
}

TEST_F(LightWeb, AMalformedFileIsRefusedWithTheLineAndTheOldWebStays) {
    light.setWebFile(fileOf("dl_point_opening.ies"));

    EXPECT_EQ(light.setWebFile(fileOf("derived/m08_vertical_angles_not_sorted.ies"), &reason),
              Quor::eUnsupportedFileFormat);

    EXPECT_THAT(reason, HasSubstr(L"第 16 行"));
    EXPECT_EQ(light.webFile(), fileOf("dl_point_opening.ies"));
    EXPECT_NEAR(light.webFlux(), 906.6, 0.05);
}

TEST_F(LightWeb, IsForWebLightsOnly) {
    light.setLightType(DrawableType::kSpotLight);

    EXPECT_EQ(light.setWebFile(fileOf("dl_point_opening.ies"), &reason), Quor::eNotApplicable);

    EXPECT_FALSE(reason.empty());
    EXPECT_TRUE(light.webFile().empty());
}

TEST_F(LightWeb, GoesWhenTheLightBecomesAnotherOne) {
    light.setWebFile(fileOf("dl_point_opening.ies"));

    EXPECT_EQ(light.setLightType(DrawableType::kPointLight), Quor::eOk);

    EXPECT_TRUE(light.webFile().empty());
    EXPECT_EQ(light.webFlux(), 0);
}

TEST_F(LightWeb, ANameThatADrawingCannotKeepIsRefused) {
    EXPECT_EQ(light.setWebFile(L"/lamps/two\nlines.ies", &reason), Quor::eInvalidInput);
    EXPECT_FALSE(reason.empty());
}

TEST_F(LightWeb, NobodyHasToAskForTheReason) { EXPECT_EQ(light.setWebFile(L"/no/such/lamp.ies"), Quor::eFileNotFound); }

struct LightWebElsewhere : LightWeb {
    ~LightWebElsewhere() override { setWebFinder(nullptr); }
};

TEST_F(LightWebElsewhere, SymmetryIsThatOfTheFileWhichTheFinderAnswers) {
    light.setWebFile(fileOf("dl_point_opening.ies"));
    setWebFinder([](const ZrString&) { return toUtf8(fileOf("pp_LLIA001477-003.ies")); });

    EXPECT_EQ(light.webSymmetry(), WebSymmetry::kMirror0_180);
}

TEST_F(LightWebElsewhere, SymmetryIsUnknownWhereTheFinderFindsNothing) {
    light.setWebFile(fileOf("dl_point_opening.ies"));
    setWebFinder([](const ZrString&) { return std::nullopt; });

    EXPECT_EQ(light.webSymmetry(), WebSymmetry::kUnknown);
}

TEST_F(LightWebElsewhere, FinderIsNotAskedForALightWithoutAWeb) {
    setWebFinder([](const ZrString&) { return toUtf8(fileOf("dl_point_opening.ies")); });

    EXPECT_EQ(light.webSymmetry(), WebSymmetry::kUnknown);
}

TEST_F(LightWeb, AnEmptyPathTakesTheWebAway) {
    light.setWebFile(fileOf("dl_point_opening.ies"));

    EXPECT_EQ(light.setWebFile(L""), Quor::eOk);

    EXPECT_TRUE(light.webFile().empty());
    EXPECT_EQ(light.webFlux(), 0);
    EXPECT_EQ(light.webSymmetry(), WebSymmetry::kUnknown);
}

TEST(LightWebInTheDrawing, FileAndFluxStandInTheirTagsAndComeBack) {
    const auto database = opened("own/light_2018.dxf");
    const std::string before = bytesOf(*database);
    const ZrString file = fileOf("gc_sterilray.ies");

    change(lightOf(*database), [&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(file);
    });
    const std::string after = bytesOf(*database);

    EXPECT_THAT(difference(before, after).come, Contains("300|" + toUtf8(file)));
    EXPECT_THAT(difference(before, after).come, Contains(HasSubstr("49|317.27")));
    const auto again = Database::fromBytes(after);
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*again.value()), ZrDb::kForRead);
    EXPECT_EQ(light->webFile(), file);
    EXPECT_NEAR(light->webFlux(), 317.3, 0.05);
    EXPECT_EQ(light->webSymmetry(), WebSymmetry::kNone);
}

TEST(LightWebInTheDrawing, AFileThatIsNotOnThisMachineIsKeptAsItIs) {
    const auto database = opened("own/light_2018.dxf");
    change(lightOf(*database), [](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(fileOf("gc_sterilray.ies"));
    });
    std::string bytes = bytesOf(*database);
    const std::string path = toUtf8(fileOf("gc_sterilray.ies"));
    bytes.replace(bytes.find(path), path.size(), "C:\\lamps\\gone.ies");

    const auto elsewhere = Database::fromBytes(bytes);
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*elsewhere.value()), ZrDb::kForRead);

    EXPECT_EQ(light->webFile(), L"C:\\lamps\\gone.ies");
    EXPECT_NEAR(light->webFlux(), 317.3, 0.05);
    EXPECT_EQ(light->webSymmetry(), WebSymmetry::kUnknown);
    EXPECT_EQ(bytesOf(*elsewhere.value()), bytes);
}

} // namespace
} // namespace quor::db
