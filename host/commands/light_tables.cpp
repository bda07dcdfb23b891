#include "host/commands/light_tables.h"

#include "host/commands/listing.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "sdk/db/database.h"
#include "sdk/ed/print.h"
#include "sdk/sys/format.h"

#include <iterator>
#include <span>

namespace quor::commands {

namespace {

bool always(int) { return true; }
bool inLux(int lightingUnits) { return lightingUnits == lux; }
bool inFootCandles(int lightingUnits) { return lightingUnits == footCandles; }

} // namespace

struct LightColumn {
    const Text& heading;
    Align align;
    ZrString (*value)(const LightFacts&); // empty: the light has none
    bool isBesideLast = false;            // the next coordinate of a point
    bool (*isShown)(int lightingUnits) = always;
    Fit fit = Fit::Whole;
};

namespace {

using F = const LightFacts&;
using Shadows = ZrGiShadowParameters;
using enum PhysicalIntensityMethod;

constexpr std::size_t kLeads = 2;   // handle and name
constexpr int kDigitsOfWebFlux = 5; // what a web shines is not known more exactly

template <std::size_t N, class E>
ZrString word(const Text (&words)[N], E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? ZrString(words[index].get()) : ZrString();
}

// Of a path only the name; paths of other systems have backslashes.
ZrString fileName(const ZrString& path) { return path.substr(path.find_last_of(L"/\\") + 1); }

ZrString rounded(int digits, const std::optional<double>& value) {
    return value ? numberText(roundedTo(digits, *value)) : ZrString();
}
ZrString angle(const std::optional<double>& degrees) { return degrees ? numberText(*degrees) + L"°" : ZrString(); }

// A star behind the number that the drawing holds; the others are converted from it.
template <std::optional<double> LightFacts::*Value, PhysicalIntensityMethod Method>
ZrString intensity(F light) {
    constexpr int kDigitsOfConverted = 6;
    const std::optional<double>& value = light.*Value;
    return value && light.method == Method ? numberText(*value) + L"*" : rounded(kDigitsOfConverted, value);
}

// A component of a direction of length 1, which needs no digits beyond these.
ZrString partText(double part) {
    ZrString text = zrFormat(L"%.6f", {part});
    text.erase(text.find_last_not_of(L'0') + 1);
    if (text.back() == L'.')
        text.pop_back();
    return text == L"-0" ? L"0" : text;
}

ZrString lampText(F light) {
    return light.lampPreset ? word(texts::kLampPresets, *light.lampPreset) : numberText(*light.lampKelvin) + L" K";
}

template <double ZrGePoint3d::*Component>
ZrString coordinate(const std::optional<ZrGePoint3d>& world) {
    return world ? lengthText(zrdbWcs2Ucs(*world).*Component) : ZrString();
}

// The target, or what aims a light that has none.
template <double ZrGePoint3d::*OfTarget, double ZrGeVector3d::*OfDirection>
ZrString aim(F light, const wchar_t* before, const wchar_t* after) {
    if (light.target)
        return coordinate<OfTarget>(light.target);
    return light.direction ? before + partText(zrdbWcs2Ucs(*light.direction).*OfDirection) + after : ZrString();
}

ZrString sizesText(const Shadows& shadows) {
    const ZrString length = lengthText(shadows.extendedLightLength());
    switch (shadows.extendedLightShape()) {
    case Shadows::kLinear:
        return length;
    case Shadows::kRect:
        return length + L" x " + lengthText(shadows.extendedLightWidth());
    case Shadows::kCylinder:
        return L"R" + lengthText(shadows.extendedLightRadius()) + L" x " + length;
    case Shadows::kDisk:
    case Shadows::kSphere:
        break;
    }
    return L"R" + lengthText(shadows.extendedLightRadius());
}

using P = ZrGePoint3d;
using V = ZrGeVector3d;
constexpr bool kBesideLast = true;
constexpr bool kApart = false;
constexpr Text kX{L"X", L"X"};
constexpr Text kY{L"Y", L"Y"};
constexpr Text kZ{L"Z", L"Z"};
constexpr Text kCandela{L"cd", L"cd"};
constexpr Text kLumen{L"lm", L"lm"};
constexpr Text kLux{L"lx", L"lx"};
constexpr Text kFootCandles{L"fc", L"fc"};

constexpr LightColumn cuttable(const Text& heading, ZrString (*value)(F)) {
    return {heading, Align::Left, value, kApart, always, Fit::MayBeCut};
}

const LightColumn kHandle{texts::kListHandle, Align::Left, [](F f) { return zrFormat(L"%X", {f.handle.value()}); }};
const LightColumn kName = cuttable(texts::kLightName, [](F f) { return f.name; });

const LightColumn kWhat[] = {
    kHandle,
    kName,
    {texts::kLightKind, Align::Left, [](F f) { return word(texts::kTableKinds, f.kind); }},
    {texts::kLightStatus, Align::Left, [](F f) { return ZrString((f.on ? texts::kOn : texts::kOff).get()); }},
    cuttable(texts::kListSpace, [](F f) { return f.layout; }),
    cuttable(texts::kListLayer, [](F f) { return f.layer; }),
    cuttable(texts::kLightWebFile, [](F f) { return fileName(f.webFile); }),
};

const LightColumn kWhere[] = {
    kHandle,
    kName,
    {kX, Align::Right, [](F f) { return coordinate<&P::x>(f.position); }},
    {kY, Align::Right, [](F f) { return coordinate<&P::y>(f.position); }, kBesideLast},
    {kZ, Align::Right, [](F f) { return coordinate<&P::z>(f.position); }, kBesideLast},
    {texts::kTableTargetX, Align::Right, [](F f) { return aim<&P::x, &V::x>(f, L"(", L""); }},
    {texts::kTableTargetY, Align::Right, [](F f) { return aim<&P::y, &V::y>(f, L"", L""); }, kBesideLast},
    {texts::kTableTargetZ, Align::Right, [](F f) { return aim<&P::z, &V::z>(f, L"", L")"); }, kBesideLast},
    {texts::kLightHotspot, Align::Right, [](F f) { return angle(f.hotspot); }},
    {texts::kLightFalloff, Align::Right, [](F f) { return angle(f.falloff); }, kBesideLast},
};

const LightColumn kIntensity[] = {
    kHandle,
    kName,
    {texts::kTableFactor, Align::Right, [](F f) { return numberText(f.factor); }},
    {kCandela, Align::Right, intensity<&LightFacts::candela, kPeakIntensity>, kApart, isPhotometric},
    {kLumen, Align::Right, intensity<&LightFacts::lumen, kFlux>, kApart, isPhotometric},
    {kLux, Align::Right, intensity<&LightFacts::illuminance, kIlluminance>, kApart, inLux},
    {kFootCandles, Align::Right, intensity<&LightFacts::illuminance, kIlluminance>, kApart, inFootCandles},
    {texts::kTableDistance, Align::Right,
     [](F f) { return f.illuminanceDistance ? lengthText(*f.illuminanceDistance) : ZrString(); }, kBesideLast,
     isPhotometric},
    {texts::kTableWebFlux, Align::Right, [](F f) { return rounded(kDigitsOfWebFlux, f.webFlux); }, kApart,
     isPhotometric},
};

const LightColumn kLook[] = {
    kHandle,
    kName,
    {texts::kLightLamp, Align::Left, lampText, kApart, isPhotometric},
    cuttable(texts::kLightColor, [](F f) { return colorText(f.color); }),
    {texts::kLightShadows, Align::Left, [](F f) { return shadowsInWords(f.shadows); }},
};

ZrString whereTitle(int) {
    const ZrString unit = shownUnit();
    return unit.empty() ? ZrString(texts::kTableWhere.get()) : fill(texts::kTableWhereIn, unit);
}

ZrString intensityTitle(int lightingUnits) {
    if (!isPhotometric(lightingUnits))
        return texts::kTableFactors.get();
    const ZrString unit = shownUnit();
    const ZrString illuminance = illuminanceUnit(lightingUnits);
    return unit.empty() ? fill(texts::kTableIntensity, illuminance) : fill(texts::kTableIntensityIn, illuminance, unit);
}

template <const Text& Title>
ZrString titleOf(int) {
    return Title.get();
}

struct TableRow {
    ZrString (*title)(int lightingUnits);
    std::span<const LightColumn> columns;
};

const TableRow kTables[] = {{titleOf<texts::kTableWhat>, kWhat},
                            {whereTitle, kWhere},
                            {intensityTitle, kIntensity},
                            {titleOf<texts::kTableLook>, kLook}};

void printTable(const TextTable& table, int width, const std::function<void()>& printed) {
    for (const TextTable::Block& block : table.blocks(width)) {
        printText(L"\n" + table.heading(block));
        table.forEachRow(block, [&](const ZrString& row) {
            printText(row);
            printed();
        });
        printText(L"\n\n");
    }
}

} // namespace

LightTables::LightTables(int lightingUnits, int width) : width_(width) {
    for (const TableRow& row : kTables) {
        Table& table = tables_.emplace_back(Table{row.title(lightingUnits), {}, TextTable(kLeads)});
        for (const LightColumn& column : row.columns) {
            if (!column.isShown(lightingUnits))
                continue;
            table.columns.push_back(&column);
            if (column.isBesideLast)
                table.texts.addBesideLast(column.heading.get(), column.align);
            else
                table.texts.addColumn(column.heading.get(), column.align, column.fit);
        }
    }
}

void LightTables::add(const LightFacts& light) {
    ++counts_[static_cast<std::size_t>(light.kind)];
    for (Table& table : tables_)
        for (const LightColumn* column : table.columns)
            table.texts.addCell(column->value(light));
}

std::size_t LightTables::lines() const {
    std::size_t lines = 0;
    for (const Table& table : tables_)
        lines += table.texts.blocks(width_).size() * table.texts.rows();
    return lines;
}

void LightTables::print(const std::function<void()>& printed) const {
    for (const Table& table : tables_) {
        printText(L"\n" + table.title);
        printTable(table.texts, width_, printed);
    }
}

ZrString LightTables::kindCounts() const {
    ZrString text;
    for (std::size_t kind = 0; kind < counts_.size(); ++kind)
        if (counts_[kind] > 0)
            text += (text.empty() ? L"" : texts::kTableComma.get()) +
                    fill(texts::kTableKindCount, texts::kTableKinds[kind].get(), counts_[kind]);
    return text;
}

ZrString shadowsInWords(const ZrGiShadowParameters& shadows) {
    if (!shadows.shadowsOn())
        return texts::kOff.get();
    const ZrString kind = word(texts::kShadowKinds, shadows.shadowType());
    switch (shadows.shadowType()) {
    case Shadows::kShadowMaps:
        return fill(texts::kTableMapped, kind, shadows.shadowMapSize(), shadows.shadowMapSoftness());
    case Shadows::kAreaSampled:
        return fill(texts::kTableSampled, kind, shadows.shadowSamples(),
                    word(texts::kShapes, shadows.extendedLightShape()), sizesText(shadows));
    case Shadows::kShadowsRayTraced:
        break;
    }
    return kind;
}

} // namespace quor::commands
