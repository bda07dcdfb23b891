#include "host/commands/light_tables.h"

#include "host/commands/listing.h"
#include "host/commands/text_table.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "sdk/db/database.h"
#include "sdk/ed/print.h"

#include <array>
#include <iterator>

namespace quor::commands {

namespace {

using F = const LightFacts&;
using Shadows = ZrGiShadowParameters;

struct LightColumn {
    const Text& heading;
    Align align;
    ZrString (*value)(const LightFacts&); // empty: the light has none
    bool isBesideLast = false;            // the next coordinate of a point
};

// Longer ones would push everything behind them off the screen; LIST and files have them in full.
constexpr int kMostOfName = 24;
constexpr int kWidest = 80; // of terminals, which may be wider and are rarely less

template <std::size_t N, class E>
ZrString word(const Text (&words)[N], E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? ZrString(words[index].get()) : ZrString();
}

ZrString shortName(const ZrString& name) { return cutToColumns(visibleText(name), kMostOfName); }

// Of a path only the name; paths of other systems have backslashes.
ZrString fileName(const ZrString& path) { return shortName(path.substr(path.find_last_of(L"/\\") + 1)); }

bool isPhotometric(F light) { return light.lightingUnits == footCandles || light.lightingUnits == lux; }

// In generic lighting the photometric values have no effect.
ZrString photometric(F light, const std::optional<double>& value) {
    return value && isPhotometric(light) ? decimalText(*value) : ZrString();
}

ZrString illuminanceIn(F light, int lightingUnits) {
    return light.lightingUnits == lightingUnits ? photometric(light, light.illuminance) : ZrString();
}

ZrString lampText(F light) {
    if (!isPhotometric(light))
        return {};
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
    return light.direction ? before + decimalText(zrdbWcs2Ucs(*light.direction).*OfDirection) + after : ZrString();
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
constexpr Text kX{L"X", L"X"};
constexpr Text kY{L"Y", L"Y"};
constexpr Text kZ{L"Z", L"Z"};
constexpr Text kCandela{L"cd", L"cd"};
constexpr Text kLumen{L"lm", L"lm"};
constexpr Text kLux{L"lx", L"lx"};
constexpr Text kFootCandles{L"fc", L"fc"};

const LightColumn kName{texts::kLightName, Align::Left, [](F f) { return shortName(f.name); }};

const LightColumn kWhat[] = {
    kName,
    {texts::kLightKind, Align::Left, [](F f) { return word(texts::kTableKinds, f.kind); }},
    {texts::kLightStatus, Align::Left, [](F f) { return ZrString((f.on ? texts::kOn : texts::kOff).get()); }},
    {texts::kListSpace, Align::Left, [](F f) { return shortName(f.layout); }},
    {texts::kListLayer, Align::Left, [](F f) { return shortName(f.layer); }},
    {texts::kLightWebFile, Align::Left, [](F f) { return fileName(f.webFile); }},
};

const LightColumn kWhere[] = {
    kName,
    {kX, Align::Right, [](F f) { return coordinate<&P::x>(f.position); }},
    {kY, Align::Right, [](F f) { return coordinate<&P::y>(f.position); }, kBesideLast},
    {kZ, Align::Right, [](F f) { return coordinate<&P::z>(f.position); }, kBesideLast},
    {texts::kTableTargetX, Align::Right, [](F f) { return aim<&P::x, &V::x>(f, L"(", L""); }},
    {texts::kTableTargetY, Align::Right, [](F f) { return aim<&P::y, &V::y>(f, L"", L""); }, kBesideLast},
    {texts::kTableTargetZ, Align::Right, [](F f) { return aim<&P::z, &V::z>(f, L"", L")"); }, kBesideLast},
};

const LightColumn kIntensity[] = {
    kName,
    {texts::kTableFactor, Align::Right, [](F f) { return decimalText(f.factor); }},
    {kCandela, Align::Right, [](F f) { return photometric(f, f.candela); }},
    {kLumen, Align::Right, [](F f) { return photometric(f, f.lumen); }},
    {kLux, Align::Right, [](F f) { return illuminanceIn(f, lux); }},
    {kFootCandles, Align::Right, [](F f) { return illuminanceIn(f, footCandles); }},
};

const LightColumn kLook[] = {
    kName,
    {texts::kLightLamp, Align::Left, lampText},
    {texts::kLightColor, Align::Left, [](F f) { return cutToColumns(colorText(f.color), kMostOfName); }},
    {texts::kLightShadows, Align::Left, [](F f) { return shadowsInWords(f.shadows); }},
};

void printTable(const ZrString& title, std::span<const LightColumn> columns, std::span<const LightFacts> lights,
                const std::function<void()>& printed) {
    TextTable table;
    for (const LightColumn& column : columns)
        if (column.isBesideLast)
            table.addBesideLast(column.heading.get(), column.align);
        else
            table.addColumn(column.heading.get(), column.align);
    for (const LightFacts& light : lights)
        for (const LightColumn& column : columns)
            table.addCell(column.value(light));
    printText(L"\n" + title);
    for (const TextTable::Block& block : table.blocks(kWidest)) {
        printText(L"\n" + table.heading(block));
        for (std::size_t row = 0; row < table.rows(); ++row) {
            printText(table.row(block, row));
            printed();
        }
        printText(L"\n\n");
    }
}

ZrString whereTitle() {
    const ZrString unit = shownUnit();
    return unit.empty() ? ZrString(texts::kTableWhere.get()) : fill(texts::kTableWhereIn, unit);
}

} // namespace

void printLightTables(std::span<const LightFacts> lights, const std::function<void()>& printed) {
    printTable(texts::kTableWhat.get(), kWhat, lights, printed);
    printTable(whereTitle(), kWhere, lights, printed);
    printTable(texts::kTableIntensity.get(), kIntensity, lights, printed);
    printTable(texts::kTableLook.get(), kLook, lights, printed);
}

ZrString kindCounts(std::span<const LightFacts> lights) {
    std::array<std::size_t, std::size(texts::kTableKinds)> counts{};
    for (const LightFacts& light : lights)
        ++counts[static_cast<std::size_t>(light.kind)];
    ZrString text;
    for (std::size_t kind = 0; kind < counts.size(); ++kind)
        if (counts[kind] > 0)
            text += (text.empty() ? L"" : texts::kTableComma.get()) +
                    fill(texts::kTableKindCount, texts::kTableKinds[kind].get(), counts[kind]);
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
