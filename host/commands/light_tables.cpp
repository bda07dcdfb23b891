#include "host/commands/light_tables.h"

#include "host/commands/listing.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "sdk/db/database.h"
#include "sdk/ed/print.h"

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
};

namespace {

using F = const LightFacts&;
using Shadows = ZrGiShadowParameters;

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

ZrString number(const std::optional<double>& value) { return value ? decimalText(*value) : ZrString(); }

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
constexpr bool kApart = false;
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
    {kCandela, Align::Right, [](F f) { return number(f.candela); }, kApart, isPhotometric},
    {kLumen, Align::Right, [](F f) { return number(f.lumen); }, kApart, isPhotometric},
    {kLux, Align::Right, [](F f) { return number(f.illuminance); }, kApart, inLux},
    {kFootCandles, Align::Right, [](F f) { return number(f.illuminance); }, kApart, inFootCandles},
};

const LightColumn kLook[] = {
    kName,
    {texts::kLightLamp, Align::Left, lampText, kApart, isPhotometric},
    {texts::kLightColor, Align::Left, [](F f) { return cutToColumns(colorText(f.color), kMostOfName); }},
    {texts::kLightShadows, Align::Left, [](F f) { return shadowsInWords(f.shadows); }},
};

ZrString whereTitle() {
    const ZrString unit = shownUnit();
    return unit.empty() ? ZrString(texts::kTableWhere.get()) : fill(texts::kTableWhereIn, unit);
}

template <const Text& Title>
ZrString titleOf() {
    return Title.get();
}

struct TableRow {
    ZrString (*title)();
    std::span<const LightColumn> columns;
};

const TableRow kTables[] = {{titleOf<texts::kTableWhat>, kWhat},
                            {whereTitle, kWhere},
                            {titleOf<texts::kTableIntensity>, kIntensity},
                            {titleOf<texts::kTableLook>, kLook}};

void printTable(const TextTable& table, const std::function<void()>& printed) {
    for (const TextTable::Block& block : table.blocks(kWidest)) {
        printText(L"\n" + table.heading(block));
        table.forEachRow(block, [&](const ZrString& row) {
            printText(row);
            printed();
        });
        printText(L"\n\n");
    }
}

} // namespace

LightTables::LightTables(int lightingUnits) {
    for (const TableRow& row : kTables) {
        Table& table = tables_.emplace_back(Table{row.title(), {}, {}});
        for (const LightColumn& column : row.columns) {
            if (!column.isShown(lightingUnits))
                continue;
            table.columns.push_back(&column);
            if (column.isBesideLast)
                table.texts.addBesideLast(column.heading.get(), column.align);
            else
                table.texts.addColumn(column.heading.get(), column.align);
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
        lines += table.texts.blocks(kWidest).size() * table.texts.rows();
    return lines;
}

void LightTables::print(const std::function<void()>& printed) const {
    for (const Table& table : tables_) {
        printText(L"\n" + table.title);
        printTable(table.texts, printed);
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
