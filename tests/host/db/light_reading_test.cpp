#include "host/db/data.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

// What the drawings of own/ hold, each with its own name and colour.
struct OwnDrawing {
    const char* file;
    const wchar_t* name;
    ZrCmColor color;
};

struct OwnLights : testing::TestWithParam<OwnDrawing> {
    std::unique_ptr<Database> database = opened(GetParam().file);
    ZrDbObjectPointer<ZrDbLight> light{lightOf(*database), ZrDb::kForRead};
};

TEST_P(OwnLights, EntityIsReadInFull) {
    EXPECT_EQ(light->handle(), ZrDbHandle(0x30));
    EXPECT_EQ(light->blockId(), database->interface().modelSpaceId());
    EXPECT_EQ(light->layer(), L"*ADSK_SYSTEM_LIGHTS");
    EXPECT_TRUE(light->color().isByLayer());
    EXPECT_EQ(light->visibility(), ZrDb::kVisible);
    EXPECT_EQ(light->linetype(), L"ByLayer");
    EXPECT_EQ(light->lineWeight(), -1);
    EXPECT_EQ(light->name(), GetParam().name);
    EXPECT_EQ(light->lightType(), DrawableType::kSpotLight);
    EXPECT_TRUE(light->isOn());
    EXPECT_EQ(light->lightColor(), GetParam().color);
    EXPECT_FALSE(light->plotsGlyph());
    EXPECT_EQ(light->intensity(), 0.8);
    EXPECT_EQ(light->position(), ZrGePoint3d(100, 200, 2700));
    EXPECT_EQ(light->targetLocation(), ZrGePoint3d(100, 450.5, 0));
}

TEST_P(OwnLights, ConeAttenuationAndShadowAreRead) {
    ZrGiShadowParameters shadow;
    light->shadowParameters(shadow);
    EXPECT_EQ(light->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kNone);
    EXPECT_FALSE(light->lightAttenuation().useLimits());
    EXPECT_EQ(light->lightAttenuation().startLimit(), 1);
    EXPECT_EQ(light->lightAttenuation().endLimit(), 10);
    EXPECT_EQ(light->hotspotAngle(), 45 * kDegree);
    EXPECT_EQ(light->falloffAngle(), 50 * kDegree);
    EXPECT_EQ(shadow, ZrGiShadowParameters());
}

TEST_P(OwnLights, PhotometryIsRead) {
    ZrGeVector3d rotation;
    light->webRotation(rotation);
    EXPECT_EQ(light->physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(light->physicalIntensity(), 1500);
    EXPECT_EQ(light->illuminanceDistance(), 1);
    EXPECT_EQ(light->lampColorType(), LampColorType::kPreset);
    EXPECT_EQ(light->lampColorTemp(), 3600);
    EXPECT_EQ(light->lampColorPreset(), LampColorPreset::kD65White);
    EXPECT_EQ(rotation, ZrGeVector3d());
    EXPECT_EQ(light->webFile(), L"");
    EXPECT_TRUE(light->hasTarget());
    EXPECT_EQ(light->glyphDisplay(), GlyphDisplay::kAutomatic);
    const auto& data = static_cast<const ZrDbLightData&>(*light.object()->hostData());
    EXPECT_EQ(data.dictionaryHandle, 0x31U);
    EXPECT_EQ(data.photometryHandle, 0x32U);
    EXPECT_EQ(data.webAngles, (std::array<double, 5>{0, 0, 1, 0, 0}));
    EXPECT_EQ(data.webFlux, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Drawings, OwnLights,
    testing::Values(OwnDrawing{"own/light_2000.dxf", L"Spotlight1", ZrCmColor::fromIndex(5)},
                    OwnDrawing{"own/light_2000_binary.dxf", L"Spotlight1", ZrCmColor::fromIndex(5)},
                    OwnDrawing{"own/light_2007.dxf", L"聚光灯1", ZrCmColor::fromIndex(5)},
                    OwnDrawing{"own/light_2018.dxf", L"聚光灯1", ZrCmColor::fromRGB(0x5C, 0x28, 0xCC)}));

// A drawing with the one light whose tags are given, with a photometric record when there is one.
std::unique_ptr<Database> withLight(const std::string& version, const std::string& tags, const std::string& record) {
    const std::string link = record.empty() ? "" : "102\n{ACAD_XDICTIONARY\n360\n31\n102\n}\n";
    const std::string objects =
        record.empty() ? ""
                       : "0\nDICTIONARY\n5\nC\n330\n0\n100\nAcDbDictionary\n0\nDICTIONARY\n5\n31\n330\n30\n100\n"
                         "AcDbDictionary\n3\nADSK_XREC_PHOTOMETRICLIGHTINFO\n360\n32\n0\nXRECORD\n5\n32\n330\n31\n100\n"
                         "AcDbXrecord\n280\n1\n" +
                             record;
    return parsed(drawing(version, {"", "", "", "0\nLIGHT\n5\n30\n" + link + tags, objects}));
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    return text.replace(text.find(what), what.size(), with);
}

TEST(LightReading, WebFlagMakesAPointLightAWebLight) {
    const auto database = withLight("AC1032", kLightTags, "290\n1\n300\n  a b.ies\n70\n1\n40\n99.5\n76\n1\n77\n2\n");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    EXPECT_EQ(light->lightType(), DrawableType::kWebLight);
    EXPECT_EQ(light->webFile(), L"  a b.ies");
    EXPECT_EQ(light->physicalIntensityMethod(), PhysicalIntensityMethod::kFlux);
    EXPECT_EQ(light->physicalIntensity(), 99.5);
    EXPECT_TRUE(light->hasTarget());
    EXPECT_EQ(light->glyphDisplay(), GlyphDisplay::kOff);
}

TEST(LightReading, RecordIsReadByCodeInWhateverOrder) {
    const auto database = withLight("AC1032", kLightTags, "77\n1\n74\n64\n75\n1\n73\n4\n48\n2.5\n71\n0\n42\n5000.0\n");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    ZrGiShadowParameters shadow;
    light->shadowParameters(shadow);
    EXPECT_EQ(light->glyphDisplay(), GlyphDisplay::kOn);
    EXPECT_EQ(shadow.shadowSamples(), 64);
    EXPECT_TRUE(shadow.shapeVisibility());
    EXPECT_EQ(shadow.extendedLightShape(), ZrGiShadowParameters::kSphere);
    EXPECT_EQ(shadow.extendedLightRadius(), 2.5);
    EXPECT_EQ(light->lampColorType(), LampColorType::kKelvin);
    EXPECT_EQ(light->lampColorTemp(), 5000);
}

TEST(LightReading, LightWithoutPhotometryHasTheValuesOfANewOne) {
    const auto database = withLight("AC1032", kLightTags, "");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    EXPECT_EQ(light->physicalIntensity(), 1500);
    EXPECT_EQ(light->lampColorTemp(), 3600);
    EXPECT_FALSE(light->hasTarget());
}

TEST(LightReading, SpotAndDistantLightWithoutPhotometryHaveATarget) {
    const auto spot = withLight("AC1032", replaced(kLightTags, "70\n2\n", "70\n3\n"), "");
    const auto distant = withLight("AC1032", replaced(kLightTags, "70\n2\n", "70\n1\n"), "");
    EXPECT_TRUE(ZrDbObjectPointer<ZrDbLight>(lightOf(*spot), ZrDb::kForRead)->hasTarget());
    EXPECT_TRUE(ZrDbObjectPointer<ZrDbLight>(lightOf(*distant), ZrDb::kForRead)->hasTarget());
}

TEST(LightReading, TagsBehindTheLastKnownOneAreNotTakenForValues) {
    const auto database = withLight("AC1032", kLightTags + "295\n1\n290\n0\n70\n1\n40\n9.0\n1\nother\n", "");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    EXPECT_TRUE(light->isOn());
    EXPECT_EQ(light->lightType(), DrawableType::kPointLight);
    EXPECT_EQ(light->intensity(), 1);
    EXPECT_EQ(light->name(), L"Lamp");
}

TEST(LightReading, NumbersThatALightCannotHoldAreLeftOut) {
    std::string tags = replaced(kLightTags, "70\n2\n", "70\n9\n");
    tags = replaced(tags, "91\n256\n", "91\n100\n");
    tags = replaced(tags, "280\n1\n", "280\n259\n"); // 3 when cut off to one byte
    const auto database = withLight("AC1032", tags, "70\n7\n72\n15\n74\n2000\n46\n-1.0\n");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    ZrGiShadowParameters shadow;
    light->shadowParameters(shadow);
    EXPECT_EQ(light->lightType(), DrawableType::kPointLight);
    EXPECT_EQ(light->physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(light->lampColorPreset(), LampColorPreset::kD65White);
    EXPECT_EQ(shadow, ZrGiShadowParameters());
}

TEST(LightReading, ColourWordOf2000IsIndexTrueColourLayerOrBlock) {
    const auto color = [](const std::string& word) {
        const auto database = withLight("AC1015", replaced(kLightTags, "63\n7\n", "90\n" + word + "\n"), "");
        return ZrDbObjectPointer<ZrDbLight>(lightOf(*database), ZrDb::kForRead)->lightColor();
    };
    EXPECT_EQ(color("-1023410171"), ZrCmColor::fromIndex(5));
    EXPECT_EQ(color("-1026700341"), ZrCmColor::fromRGB(0xCD, 0xCB, 0xCB));
    EXPECT_TRUE(color("-1073741824").isByLayer());
    EXPECT_TRUE(color("-1056964608").isByBlock());
    EXPECT_EQ(color("12"), ZrCmColor::fromIndex(7));
}

TEST(LightReading, ColourOfABookHasItsNames) {
    const auto database =
        withLight("AC1032", replaced(kLightTags, "63\n7\n", "63\n1\n421\n16711680\n431\nBook$Red\n"), "");
    const ZrDbObjectPointer<ZrDbLight> light(lightOf(*database), ZrDb::kForRead);
    EXPECT_EQ(light->lightColor().bookName(), L"Book");
    EXPECT_EQ(light->lightColor().colorName(), L"Red");
    EXPECT_EQ(light->lightColor().rgb(), 0xFF0000U);
}

TEST(LightReading, LinkToADictionaryThatIsMissingIsNoPhotometry) {
    const std::string link = "102\n{ACAD_XDICTIONARY\n360\n99\n102\n}\n";
    const auto database = parsed(drawing("AC1032", {"", "", "", "0\nLIGHT\n5\n30\n" + link + kLightTags, ""}));
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*database), ZrDb::kForRead)->physicalIntensity(), 1500);
}

} // namespace
} // namespace quor::db
