// Real web files, and what may be wrong with them. More of them than those of tests/data are read when QUOR_SAMPLES
// names a folder with further ones in its folder ies.
#include "host/ies/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <iterator>

namespace quor::ies {
namespace {

namespace fs = std::filesystem;

// The path of a file of tests/data/ies or of the folder of further samples; empty when it is in neither.
fs::path found(const std::string& name) {
    const fs::path own = fs::path(QUOR_TEST_DATA) / "ies" / name;
    if (fs::exists(own))
        return own;
    const char* more = std::getenv("QUOR_SAMPLES");
    const fs::path further = more == nullptr ? fs::path() : fs::path(more) / "ies" / name;
    return fs::exists(further) ? further : fs::path();
}

// Files that come with the program, with the lumens that they state.
struct Shipped {
    const char* name;
    double stated;
};

// What tests/tools/ies_flux.py prints for the file; it has a parser and an integration of its own.
// `zonal` unfolds the web to all directions and gives each cell the mean of its corners, as the flux is defined here.
// `interpolated` is the integral of the interpolated intensities by Simpson's rule in every cell: another integral,
// which differs from the other one where the steps are wide, at most by the share `differs`.
struct Sample {
    const char* name;
    double zonal;
    double interpolated;
    Edition edition;
    Symmetry symmetry;
    double differs;
    double stated = 0; // what the file says the luminaire gives, or the integral of its formula; lumen
};

constexpr auto kAxial = Symmetry::Axial;
constexpr auto kNone = Symmetry::None;
constexpr auto kHalf = Symmetry::Mirror0_180;
constexpr auto kAtZero = Symmetry::MirrorAtZero;
constexpr auto k1986 = Edition::Lm1986;
constexpr auto k1995 = Edition::Lm1995;
constexpr auto k2002 = Edition::Lm2002;
constexpr auto k2019 = Edition::Lm2019;

const std::vector<Sample> kSamples{
    {"dl_absolute_photometry.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_horizontal_cylinder_opening_along_length.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_imperial_units.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_label_lines.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_point_opening.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_rectangular_opening_with_height.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_relative_photometry_with_multiplier.ies", 1359.8613, 1356.7868, k1995, kAxial, 0.003},
    {"dl_round_opening.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"dl_sphere_opening.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"gc_B1_module.ies", 121.6614, 121.1382, k2002, kNone, 0.005},
    {"gc_nukit_torch.ies", 12.7237, 12.7148, k2002, kNone, 0.001},
    {"gc_sterilray.ies", 317.2745, 316.9764, k2002, kNone, 0.001},
    {"pp_LLIA001477-003.ies", 55.3480, 55.3483, k2002, kHalf, 0.001},
    {"pp_tilt_include_geometry2.ies", 13331.5853, 13227.5910, k2019, kHalf, 0.008},
    {"pp_tilt_include_v19.ies", 21367.4613, 20826.3504, k2019, Symmetry::Quadrants, 0.026},
    {"pp_type_a_symmetric.ies", 19770.3861, 20003.0374, k2019, kAtZero, 0.012},
    {"pp_type_b_full.ies", 59946.5208, 60462.3793, k2019, kAtZero, 0.009},
    {"derived/m01_no_version_line_1986.ies", 906.5742, 904.5245, k1986, kAxial, 0.003},
    {"derived/m03_tilt_lowercase_spaces.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"derived/m04_comma_separated.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"derived/m05_utf8_bom_cjk_keywords.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"derived/m06_trailing_text.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"derived/m07_one_number_per_line.ies", 906.5742, 904.5245, k1995, kAxial, 0.003},
    {"own/made_90_270.ies", 1570.7950, 1566.7955, k2002, Symmetry::Mirror90_270, 0.003, 1570.796},
    {"own/made_circle_from_22_5.ies", 1256.6092, 1253.4096, k2002, kNone, 0.003, 1256.637},
    {"own/made_missing_360.ies", 1012.1224, 1008.3002, k2002, kNone, 0.004, 1005.310},
    // Further samples.
    {"eu_Indoor_60W_OVNI.ies", 5300.8666, 5300.8229, k2002, kAxial, 0.001, 5300},
    {"eu_OutdoorRoadway.ies", 9155.4206, 9155.3676, k1995, kNone, 0.001, 9155.7},
    {"eu_TILT_TEST_SYNTHETIC.ies", 3266.2281, 3226.8576, k2002, kAxial, 0.013},
    {"rad_examp1.ies", 5297.3894, 5296.6549, k1995, Symmetry::Quadrants, 0.001},
    {"tj_02a7562c.ies", 9600.3153, 9600.1041, k1995, Symmetry::Mirror90_270, 0.001, 9600},
    {"tj_06b4cfdc.ies", 1232.4414, 1224.6036, k1995, kNone, 0.007},
};

std::vector<Sample> samplesHere() {
    std::vector<Sample> here;
    std::copy_if(kSamples.begin(), kSamples.end(), std::back_inserter(here),
                 [](const Sample& sample) { return !found(sample.name).empty(); });
    return here;
}

std::vector<Sample> statingSamplesHere() {
    std::vector<Sample> here = samplesHere();
    std::erase_if(here, [](const Sample& sample) { return sample.stated == 0; });
    return here;
}

class WebSample : public testing::TestWithParam<Sample> {
protected:
    void SetUp() override {
        const auto loaded = loadWeb(found(GetParam().name));
        ASSERT_TRUE(loaded.ok());
        sample = loaded.value();
    }

    std::shared_ptr<const WebFile> sample;
};

TEST_P(WebSample, HasTheFluxOfTheIndependentSum) {
    EXPECT_NEAR(sample->flux, GetParam().zonal, 0.001 * GetParam().zonal);
}

TEST_P(WebSample, HasTheFluxOfTheInterpolatedWebAsFarAsTheStepsAllow) {
    EXPECT_NEAR(sample->flux, GetParam().interpolated, GetParam().differs * GetParam().interpolated);
}

TEST_P(WebSample, HasItsEditionAndSymmetry) {
    EXPECT_EQ(sample->web.edition, GetParam().edition);
    EXPECT_EQ(sample->web.symmetry, GetParam().symmetry);
}

TEST_P(WebSample, HasItsOwnIntensitiesAtItsAngles) {
    const PhotometricWeb& web = sample->web;

    for (std::size_t h = 0; h < web.horizontal.size(); ++h)
        for (std::size_t v = 0; v < web.vertical.size(); ++v)
            ASSERT_DOUBLE_EQ(intensityAt(web, web.horizontal[h], web.vertical[v]), web.at(h, v)) << h << ' ' << v;
}

std::string testName(const testing::TestParamInfo<Sample>& test) {
    std::string name = test.param.name;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Webs, WebSample, testing::ValuesIn(samplesHere()), testName);

// Of luminaires whose lumens are known, given in steps fine enough to find them again.
class StatedLumens : public WebSample {};

TEST_P(StatedLumens, AreThoseOfTheFlux) { EXPECT_NEAR(sample->flux, GetParam().stated, 0.01 * GetParam().stated); }

INSTANTIATE_TEST_SUITE_P(Webs, StatedLumens, testing::ValuesIn(statingSamplesHere()), testName);

class WebOfTheProgram : public testing::TestWithParam<Shipped> {};

TEST_P(WebOfTheProgram, HasTheLumensThatItStates) {
    const fs::path folder = fs::path(QUOR_TEST_DATA) / ".." / ".." / "resources" / "webs";
    const auto file = loadWeb(folder / GetParam().name).value();
    const auto stated = std::find_if(file->web.keywords.begin(), file->web.keywords.end(),
                                     [](const Keyword& keyword) { return keyword.name == L"_FLUX"; });

    ASSERT_NE(stated, file->web.keywords.end());
    EXPECT_EQ(stated->text, std::to_wstring(static_cast<int>(GetParam().stated)) + L" lm");
    EXPECT_NEAR(file->flux, GetParam().stated, 0.01 * GetParam().stated);
    EXPECT_TRUE(file->web.warnings.empty());
}

INSTANTIATE_TEST_SUITE_P(All, WebOfTheProgram,
                         testing::Values(Shipped{"downlight.ies", 1000}, Shipped{"wall_washer.ies", 2000},
                                         Shipped{"street.ies", 8000}));

class TestDataFolder : public testing::TestWithParam<const char*> {};

TEST_P(TestDataFolder, HasAFluxForEachOfItsWebs) {
    const fs::path all = fs::path(QUOR_TEST_DATA) / "ies";
    for (const fs::directory_entry& file : fs::directory_iterator(all / GetParam())) {
        if (file.path().extension() == ".ies") {
            EXPECT_TRUE(std::any_of(kSamples.begin(), kSamples.end(), [&](const Sample& sample) {
                return sample.name == file.path().lexically_relative(all).lexically_normal();
            })) << file.path();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, TestDataFolder, testing::Values(".", "own"));

Error refused(const char* name) { return loadWeb(fs::path(QUOR_TEST_DATA) / "ies" / "derived" / name).error(); }

TEST(WebFiles, CutOffOneIsRefused) {
    const Error error = refused("m02_truncated_candela.ies");

    EXPECT_EQ(error.kind, Error::Kind::MissingNumber);
    EXPECT_EQ(error.line, 20U);
}

TEST(WebFiles, OneWithAnglesOutOfOrderIsRefused) {
    const Error error = refused("m08_vertical_angles_not_sorted.ies");

    EXPECT_EQ(error.kind, Error::Kind::AnglesNotIncreasing);
    EXPECT_EQ(error.line, 16U);
    EXPECT_EQ(error.excerpt, L"10.0");
}

TEST(WebFiles, OneWithItsTiltFactorsInAnotherFileIsRefused) {
    const Error error = refused("m09_tilt_file_missing.ies");

    EXPECT_EQ(error.kind, Error::Kind::TiltFile);
    EXPECT_EQ(error.line, 13U);
    EXPECT_EQ(error.excerpt, L"NOSUCH.TLT");
}

std::vector<Warning> warningsOf(const char* name) {
    return loadWeb(fs::path(QUOR_TEST_DATA) / "ies" / name).value()->web.warnings;
}

TEST(WebFiles, TextBehindTheDataIsWarnedOf) {
    const std::vector<Warning> warnings = warningsOf("derived/m06_trailing_text.ies");

    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].kind, Warning::Kind::TrailingText);
    EXPECT_EQ(warnings[0].line, 22U);
}

TEST(WebFiles, SoundOneGivesNoWarnings) { EXPECT_TRUE(warningsOf("dl_absolute_photometry.ies").empty()); }

TEST(WebFiles, MissingPlaneIsAdded) {
    const PhotometricWeb web = loadWeb(found("own/made_missing_360.ies")).value()->web;

    EXPECT_EQ(web.horizontal.size(), 25U);
    EXPECT_EQ(web.horizontal.back(), 360);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::Missing360);
    EXPECT_DOUBLE_EQ(intensityAt(web, 352.5, 40), (web.at(23, 4) + web.at(0, 4)) / 2);
}

TEST(WebFiles, CircleThatDoesNotBeginAtZeroIsClosed) {
    const PhotometricWeb web = loadWeb(found("own/made_circle_from_22_5.ies")).value()->web;

    EXPECT_EQ(web.horizontal.back(), 382.5);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::Missing360);
    EXPECT_DOUBLE_EQ(intensityAt(web, 0, 40), (web.at(7, 4) + web.at(0, 4)) / 2);
}

TEST(WebFiles, OneOf90To270KeepsItsAngles) {
    const PhotometricWeb web = loadWeb(found("own/made_90_270.ies")).value()->web;

    EXPECT_EQ(web.horizontal.front(), 90);
    EXPECT_EQ(web.horizontal.back(), 270);
    EXPECT_TRUE(web.warnings.empty());
    EXPECT_DOUBLE_EQ(intensityAt(web, 30, 40), intensityAt(web, 150, 40));
    EXPECT_NE(intensityAt(web, 112.5, 40), intensityAt(web, 247.5, 40)) << "left and right of the plane 0-180 differ";
}

TEST(WebFiles, CjkKeywordsAreRead) {
    const auto file = loadWeb(fs::path(QUOR_TEST_DATA) / "ies/derived/m05_utf8_bom_cjk_keywords.ies").value();

    EXPECT_EQ(file->web.keywords.at(2).name, L"MANUFAC");
    EXPECT_EQ(file->web.keywords.at(2).text.substr(0, 8), L"照明器具株式会社");
}

TEST(WebFiles, TiltFactorsAreKept) {
    const auto file = loadWeb(fs::path(QUOR_TEST_DATA) / "ies/pp_tilt_include_geometry2.ies").value();

    ASSERT_TRUE(file->web.tilt.has_value());
    EXPECT_EQ(file->web.tilt->geometry, 2);
    EXPECT_EQ(file->web.tilt->angles.size(), 13U);
    EXPECT_EQ(file->web.tilt->factors.at(6), 0.82);
}

TEST(WebFiles, MissingPlaneAt360OfARealOneIsAdded) {
    const fs::path file = found("tj_06b4cfdc.ies");
    if (file.empty())
        GTEST_SKIP() << "no such sample here";
    const PhotometricWeb web = loadWeb(file).value()->web;

    EXPECT_EQ(web.horizontal.size(), 25U);
    EXPECT_EQ(web.horizontal.back(), 360);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::Missing360);
}

TEST(WebFiles, RealOneOf90To270KeepsItsAngles) {
    const fs::path file = found("tj_02a7562c.ies");
    if (file.empty())
        GTEST_SKIP() << "no such sample here";
    const PhotometricWeb web = loadWeb(file).value()->web;

    EXPECT_EQ(web.horizontal.front(), 90);
    EXPECT_EQ(web.horizontal.back(), 270);
    EXPECT_EQ(intensityAt(web, 30, 40), intensityAt(web, 150, 40));
    EXPECT_NE(intensityAt(web, 100, 60), intensityAt(web, 260, 60)) << "left and right of the plane 0-180 differ";
}

} // namespace
} // namespace quor::ies
