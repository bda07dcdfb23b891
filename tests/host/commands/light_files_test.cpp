#include "host/commands/light_files.h"

#include "host/sys/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace quor::commands {

namespace {

constexpr const char* kFieldNames =
    "handle,name,kind,space,layer,on,position_x,position_y,position_z,target_x,target_y,target_z,direction_x,"
    "direction_y,direction_z,hotspot_degrees,falloff_degrees,intensity_factor,given_as,candela,lumen,illuminance,"
    "illuminance_unit,illuminance_distance,lamp_preset,lamp_kelvin,color,color_index,color_name,web_file,shadows,"
    "shadow_map_size,shadow_softness,shadow_samples,shadow_shape,shadow_shape_length,shadow_shape_width,"
    "shadow_shape_radius,attenuation,attenuation_limits,attenuation_start,attenuation_end,web_rotation_x,"
    "web_rotation_y,web_rotation_z,web_flux";

const LightFileFormat& csv() { return lightFileFormats()[0]; }
const LightFileFormat& json() { return lightFileFormats()[1]; }

std::string rowOf(const LightFileFormat& format, const LightFacts& light, bool isFirst = true, int units = lux) {
    std::string row;
    format.append(row, fieldsOf(light, units), isFirst);
    return row;
}

// The value of one field, as a CSV file has it.
std::string cell(const LightFacts& light, std::string_view name, int units = lux) {
    const auto fields = lightFields();
    const auto field = std::ranges::find(fields, name, &LightField::name);
    std::string row = rowOf(csv(), light, true, units);
    for (auto before = fields.begin(); before != field; ++before)
        row.erase(0, row.find(',') + 1);
    return row.substr(0, row.find_first_of(",\r"));
}

class ALightInAFile : public testing::Test {
protected:
    ALightInAFile() {
        light.handle = ZrDbHandle(0x2AF);
        light.name = L"lamp";
        light.layer = L"*ADSK_SYSTEM_LIGHTS";
        light.position = ZrGePoint3d(1, 2.5, -3);
        light.candela = 1500;
        light.illuminanceDistance = 1;
        light.lampPreset = LampColorPreset::kD65White;
        light.color = ZrCmColor::fromIndex(7);
    }
    void cast(ZrGiShadowParameters::ShadowType type) { light.shadows.setShadowType(type); }
    [[nodiscard]] bool looksLikeFormula() const { return commands::looksLikeFormula(fieldsOf(light, lux)); }
    // The beginning of its row when it has this name.
    std::string nameInCsv(const ZrString& name) {
        light.name = name;
        const std::string row = rowOf(csv(), light);
        return row.substr(4, row.find(",point,") - 4);
    }
    std::string nameInJson(const ZrString& name) {
        light.name = name;
        const std::string row = rowOf(json(), light);
        const std::string before = "\"name\": ";
        const std::size_t begin = row.find(before) + before.size();
        return row.substr(begin, row.find(", \"kind\"") - begin);
    }

    LightFacts light;
};

TEST_F(ALightInAFile, IsARowOfCsv) {
    EXPECT_EQ(rowOf(csv(), light), "2AF,lamp,point,Model,*ADSK_SYSTEM_LIGHTS,true,1,2.5,-3,,,,,,,,,1,candela,1500,,,,1,"
                                   "d65_white,,#FFFFFF,7,,,sharp,,,,,,,,none,false,1,10,,,,\r\n");
}

TEST_F(ALightInAFile, IsALineOfJson) {
    EXPECT_EQ(
        rowOf(json(), light),
        "\n    {\"handle\": \"2AF\", \"name\": \"lamp\", \"kind\": \"point\", \"space\": \"Model\", \"layer\": "
        "\"*ADSK_SYSTEM_LIGHTS\", \"on\": true, \"position_x\": 1, \"position_y\": 2.5, \"position_z\": -3, "
        "\"target_x\": null, \"target_y\": null, \"target_z\": null, \"direction_x\": null, \"direction_y\": null, "
        "\"direction_z\": null, \"hotspot_degrees\": null, \"falloff_degrees\": null, \"intensity_factor\": 1, "
        "\"given_as\": \"candela\", \"candela\": 1500, \"lumen\": null, \"illuminance\": null, "
        "\"illuminance_unit\": null, \"illuminance_distance\": 1, \"lamp_preset\": \"d65_white\", \"lamp_kelvin\": "
        "null, \"color\": \"#FFFFFF\", \"color_index\": 7, \"color_name\": null, \"web_file\": null, \"shadows\": "
        "\"sharp\", \"shadow_map_size\": null, \"shadow_softness\": null, \"shadow_samples\": null, "
        "\"shadow_shape\": null, \"shadow_shape_length\": null, \"shadow_shape_width\": null, "
        "\"shadow_shape_radius\": null, \"attenuation\": \"none\", \"attenuation_limits\": false, "
        "\"attenuation_start\": 1, \"attenuation_end\": 10, \"web_rotation_x\": null, \"web_rotation_y\": null, "
        "\"web_rotation_z\": null, \"web_flux\": null}");
}

TEST_F(ALightInAFile, HasAWordForEachKind) {
    constexpr const char* kWords[] = {"point", "target_point", "spot", "free_spot", "web", "free_web", "distant"};
    for (std::size_t kind = 0; kind < std::size(kWords); ++kind) {
        light.kind = static_cast<LightKind>(kind);
        EXPECT_EQ(cell(light, "kind"), kWords[kind]);
    }
}

TEST_F(ALightInAFile, HasAWordForEachPreset) {
    for (int preset = 0; preset <= static_cast<int>(LampColorPreset::kCustom); ++preset) {
        light.lampPreset = static_cast<LampColorPreset>(preset);
        EXPECT_NE(cell(light, "lamp_preset"), "");
    }
    EXPECT_EQ(cell(light, "lamp_preset"), "custom");
}

TEST_F(ALightInAFile, IsInALayoutByName) {
    light.layout = L"A3";

    EXPECT_EQ(cell(light, "space"), "A3");
}

TEST_F(ALightInAFile, HasNumbersThatComeBackExactly) {
    light.candela = 0.1;
    EXPECT_EQ(cell(light, "candela"), "0.1");
    light.candela = 1.0 / 3;
    EXPECT_EQ(cell(light, "candela"), "0.3333333333333333");
    light.candela = std::numeric_limits<double>::max();
    EXPECT_EQ(cell(light, "candela"), "1.7976931348623157e+308");
    light.candela = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(cell(light, "candela"), "5e-324");
    light.candela = 1.5e9;
    EXPECT_EQ(cell(light, "candela"), "1500000000");
    light.candela = 0.0000123;
    EXPECT_EQ(cell(light, "candela"), "0.0000123");
    light.candela = 1e15;
    EXPECT_EQ(cell(light, "candela"), "1e+15");
    light.candela = -0.0;
    EXPECT_EQ(cell(light, "candela"), "0");
}

TEST_F(ALightInAFile, TellsTheUnitOfItsIlluminance) {
    EXPECT_EQ(cell(light, "illuminance_unit"), "");
    light.illuminance = 40;
    EXPECT_EQ(cell(light, "illuminance_unit"), "lx");
    EXPECT_EQ(cell(light, "illuminance_unit", footCandles), "fc");
    EXPECT_EQ(cell(light, "illuminance_unit", 0), "");
}

TEST_F(ALightInAFile, HasTheNumbersOfItsKindOfShadowsOnly) {
    cast(ZrGiShadowParameters::kShadowMaps);
    EXPECT_EQ(cell(light, "shadows"), "soft_mapped");
    EXPECT_EQ(cell(light, "shadow_map_size"), "256");
    EXPECT_EQ(cell(light, "shadow_softness"), "1");
    EXPECT_EQ(cell(light, "shadow_samples"), "");

    light.shadows.setShadowsOn(false);
    EXPECT_EQ(cell(light, "shadows"), "off");
    EXPECT_EQ(cell(light, "shadow_map_size"), "");
}

TEST_F(ALightInAFile, HasTheSizesOfItsShapeOnly) {
    cast(ZrGiShadowParameters::kAreaSampled);
    light.shadows.setExtendedLightLength(3);
    light.shadows.setExtendedLightWidth(4);
    light.shadows.setExtendedLightRadius(5);

    EXPECT_EQ(cell(light, "shadow_shape"), "rectangle");
    EXPECT_EQ(cell(light, "shadow_shape_length"), "3");
    EXPECT_EQ(cell(light, "shadow_shape_width"), "4");
    EXPECT_EQ(cell(light, "shadow_shape_radius"), "");

    light.shadows.setExtendedLightShape(ZrGiShadowParameters::kCylinder);
    EXPECT_EQ(cell(light, "shadow_shape_length"), "3");
    EXPECT_EQ(cell(light, "shadow_shape_width"), "");
    EXPECT_EQ(cell(light, "shadow_shape_radius"), "5");

    light.shadows.setExtendedLightShape(ZrGiShadowParameters::kSphere);
    EXPECT_EQ(cell(light, "shadow_shape_length"), "");
    EXPECT_EQ(cell(light, "shadow_shape_radius"), "5");
}

TEST_F(ALightInAFile, HasTheNameOfAColourOfABook) {
    light.color = ZrCmColor::fromRGB(0x66, 0x33, 0x99);
    EXPECT_EQ(cell(light, "color"), "#663399");
    EXPECT_EQ(cell(light, "color_index"), "");

    light.color.setNames(L"rebeccapurple", L"Web Colors");
    EXPECT_EQ(cell(light, "color_name"), "Web Colors$rebeccapurple");
}

TEST_F(ALightInAFile, HasTheNameAloneOfAColourOfNoBook) {
    light.color = ZrCmColor::fromRGB(0x66, 0x33, 0x99);
    EXPECT_EQ(cell(light, "color_name"), "");

    light.color.setNames(L"rebeccapurple", L"");
    EXPECT_EQ(cell(light, "color_name"), "rebeccapurple");
}

TEST_F(ALightInAFile, HasItsAttenuation) {
    light.attenuation.setAttenuationType(ZrGiLightAttenuation::kInverseSquare);
    light.attenuation.setUseLimits(true);
    light.attenuation.setLimits(2.5, 40);

    EXPECT_EQ(cell(light, "attenuation"), "inverse_square");
    EXPECT_EQ(cell(light, "attenuation_limits"), "true");
    EXPECT_EQ(cell(light, "attenuation_start"), "2.5");
    EXPECT_EQ(cell(light, "attenuation_end"), "40");

    light.attenuation.setAttenuationType(ZrGiLightAttenuation::kInverseLinear);
    EXPECT_EQ(cell(light, "attenuation"), "inverse_linear");
}

TEST_F(ALightInAFile, HasTheRotationAndTheFluxOfItsWeb) {
    light.webRotation = ZrGeVector3d(10, 20, 370);
    light.webFlux = 1999.5;

    EXPECT_EQ(cell(light, "web_rotation_x"), "10");
    EXPECT_EQ(cell(light, "web_rotation_y"), "20");
    EXPECT_EQ(cell(light, "web_rotation_z"), "370");
    EXPECT_EQ(cell(light, "web_flux"), "1999.5");
}

TEST_F(ALightInAFile, HasAQuotedNameWhereCsvNeedsIt) {
    EXPECT_EQ(nameInCsv(L"吊灯 1"), "吊灯 1");
    EXPECT_EQ(nameInCsv(L"a,b"), "\"a,b\"");
    EXPECT_EQ(nameInCsv(L"5\" lamp"), "\"5\"\" lamp\"");
    EXPECT_EQ(nameInCsv(L"a\nb"), "\"a\nb\"");
    EXPECT_EQ(nameInCsv(L" a"), "\" a\"");
    EXPECT_EQ(nameInCsv(L"a "), "\"a \"");
    EXPECT_EQ(nameInCsv(L""), "");
}

TEST_F(ALightInAFile, HasItsNameAsItIsAlsoWhereItLooksLikeAFormula) {
    EXPECT_EQ(nameInCsv(L"=1+1"), "=1+1");
    EXPECT_EQ(nameInCsv(L"@x"), "@x");
}

TEST_F(ALightInAFile, EscapesWhatJsonNeedsEscaped) {
    EXPECT_EQ(nameInJson(L"吊灯"), "\"吊灯\"");
    EXPECT_EQ(nameInJson(L"5\" lamp\\"), "\"5\\\" lamp\\\\\"");
    EXPECT_EQ(nameInJson(L"a\tb\x1F"), "\"a\\u0009b\\u001f\"");
}

TEST_F(ALightInAFile, KeepsANameOf255Characters) {
    const ZrString name(255, L'灯');

    EXPECT_EQ(nameInCsv(name), toUtf8(name));
    EXPECT_EQ(nameInJson(name), "\"" + toUtf8(name) + "\"");
}

TEST_F(ALightInAFile, IsValidUtf8WhateverItsNameCameFrom) {
    const ZrString broken = fromUtf8("a\xFF"
                                     "b");

    EXPECT_EQ(nameInCsv(broken), "a\uFFFDb");
    EXPECT_EQ(nameInJson(broken), "\"a\uFFFDb\"");
}

TEST_F(ALightInAFile, IsToldWhereASpreadsheetWouldTakeATextForAFormula) {
    EXPECT_FALSE(looksLikeFormula());
    for (const wchar_t first : {L'=', L'+', L'-', L'@', L'\t', L'\r'}) {
        light.name = ZrString(1, first) + L"1";
        EXPECT_TRUE(looksLikeFormula());
    }
    light.name = L"lamp=1";
    EXPECT_FALSE(looksLikeFormula());
}

TEST_F(ALightInAFile, IsToldOfAFormulaInEveryTextOfADrawing) {
    for (ZrString LightFacts::*text :
         {&LightFacts::name, &LightFacts::layout, &LightFacts::layer, &LightFacts::webFile}) {
        light.*text = L"-1";
        EXPECT_TRUE(looksLikeFormula());
        light.*text = L"a";
        EXPECT_FALSE(looksLikeFormula());
    }
}

TEST_F(ALightInAFile, IsToldOfAFormulaInTheNameOfItsColour) {
    light.color = ZrCmColor::fromRGB(1, 2, 3);
    light.color.setNames(L"=cmd|x", L"");
    EXPECT_TRUE(looksLikeFormula());

    light.color.setNames(L"=cmd|x", L"book");
    EXPECT_FALSE(looksLikeFormula());

    light.color.setNames(L"red", L"@book");
    EXPECT_TRUE(looksLikeFormula());
}

TEST_F(ALightInAFile, IsNoFormulaForANegativeNumber) {
    light.position = ZrGePoint3d(-1, -2, -3);

    EXPECT_FALSE(looksLikeFormula());
}

TEST(TheFile, OfCsvBeginsWithTheNamesOfItsFields) {
    EXPECT_EQ(csv().begin({}) + csv().end, std::string(kFieldNames) + "\r\n");
}

TEST(TheFile, OfJsonTellsOfTheDrawing) {
    const DrawingFacts drawing{L"/office.dxf", L"mm", 4, 2};

    EXPECT_EQ(json().begin(drawing) + json().end,
              "{\n  \"drawing\": \"/office.dxf\",\n  \"units\": {\"length\": \"mm\", \"illuminance\": \"lx\", "
              "\"insunits\": 4, \"lightingunits\": 2},\n  \"lights\": [\n  ]\n}\n");
}

TEST(TheFile, OfJsonHasNoUnitsOfAUnitlessDrawing) {
    EXPECT_NE(json().begin({L"x", L"", 0, 0}).find("{\"length\": null, \"illuminance\": null, \"insunits\": 0, "),
              std::string::npos);
}

TEST(TheFile, OfJsonSeparatesTheLights) {
    EXPECT_TRUE(rowOf(json(), {}, true).starts_with("\n    {"));
    EXPECT_TRUE(rowOf(json(), {}, false).starts_with(",\n    {"));
}

} // namespace

} // namespace quor::commands
