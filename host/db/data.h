// The values of each kind of object: what an object holds, undo keeps, and the file fields read and write.
#pragma once

#include "host/db/object_entry.h"
#include "sdk/cm/color.h"
#include "sdk/db/light.h"
#include "sdk/sys/string.h"

#include <array>
#include <numbers>

namespace quor::db {

inline constexpr double kDegree = std::numbers::pi / 180;

// Gives a data type its clone().
template <class Self, class Base>
struct Cloned : Base {
    [[nodiscard]] std::unique_ptr<ZrDbObjectData> clone() const override {
        return std::make_unique<Self>(static_cast<const Self&>(*this));
    }
};

} // namespace quor::db

struct ZrDbEntityData : quor::db::Cloned<ZrDbEntityData, ZrDbObjectData> {
    quor::db::ObjectEntry* layer = nullptr;
    ZrString missingLayer = L"0"; // the name in the file when the table has no such layer
    ZrString linetype;            // empty: by layer
    ZrCmColor color;
    int lineWeight = -1;
    bool visible = true;
};

struct ZrDbLineData : quor::db::Cloned<ZrDbLineData, ZrDbEntityData> {
    ZrGePoint3d start;
    ZrGePoint3d end;
};

struct ZrDbFaceData : quor::db::Cloned<ZrDbFaceData, ZrDbEntityData> {
    std::array<ZrGePoint3d, 4> vertices;
    int hiddenEdges = 0; // a bit per edge
};

struct ZrDbLightData : quor::db::Cloned<ZrDbLightData, ZrDbEntityData> {
    ZrString name;
    ZrString webFile;
    ZrCmColor lightColor = ZrCmColor::fromIndex(7);
    ZrGePoint3d position;
    ZrGePoint3d target{0, 0, -10};
    ZrGeVector3d webRotation;
    ZrGiLightAttenuation attenuation;
    ZrGiShadowParameters shadow;
    double intensity = 1;
    double hotspot = 45 * quor::db::kDegree;
    double falloff = 50 * quor::db::kDegree;
    double physicalIntensity = 1500;
    double illuminanceDistance = 1;
    double lampTemperature = 3600;
    double webFlux = 0;
    // Angles of the web as the file keeps them, in radians; their meaning is not known.
    std::array<double, 5> webAngles{0, 0, 1, 0, 0};
    LampColorPreset lampPreset = LampColorPreset::kD65White;
    DrawableType type = DrawableType::kPointLight;
    PhysicalIntensityMethod method = PhysicalIntensityMethod::kPeakIntensity;
    LampColorType lampType = LampColorType::kPreset;
    GlyphDisplay glyph = GlyphDisplay::kAutomatic;
    bool on = true;
    bool hasTarget = false;
    bool plotsGlyph = false;
    // The extension dictionary and the record with the photometric data, 0 when the light has none. They belong to the
    // light: written with it, erased with it.
    std::uint64_t dictionaryHandle = 0;
    std::uint64_t photometryHandle = 0;
};

struct ZrDbLayerTableRecordData : quor::db::Cloned<ZrDbLayerTableRecordData, ZrDbObjectData> {
    ZrString name; // without the asterisk
    ZrString plotStyle;
    ZrString linetype;
    ZrCmColor color = ZrCmColor::fromIndex(7);
    int flags = 0; // 1 frozen, 4 locked
    // The number that the file keeps beside a true colour, for programs that know none; 0: the nearest one.
    int indexBesideTrueColor = 0;
    int lineWeight = -3;
    bool hidden = false;
    bool off = false;
    bool plottable = true;
};

namespace quor::db {

struct Block;
struct SymbolTable;

// A block record; its entities are kept beside it.
struct BlockRecordData : Cloned<BlockRecordData, ZrDbObjectData> {
    Block* block = nullptr;
};

// A symbol table.
struct TableData : Cloned<TableData, ZrDbObjectData> {
    SymbolTable* table = nullptr;
};

// An object that the host knows no more of than its tags.
struct RawData : Cloned<RawData, ZrDbObjectData> {};

} // namespace quor::db
