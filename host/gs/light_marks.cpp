#include "host/gs/light_marks.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/object_reader.h"
#include "host/db/units_conversion.h"
#include "host/gs/light_color.h"
#include "host/gs/web_directions.h"

#include <algorithm>
#include <cmath>

namespace quor::gs {

namespace {

constexpr int kMillimetres = 4; // a value of INSUNITS

long long headerNumber(const db::Database& drawing, std::wstring_view name, long long otherwise) {
    const auto value = drawing.header(name);
    const auto* number = value ? std::get_if<long long>(&*value) : nullptr;
    return number != nullptr ? *number : otherwise;
}

GlyphKind kindOf(DrawableType type) {
    switch (type) {
    case DrawableType::kDistantLight:
        return GlyphKind::Distant;
    case DrawableType::kSpotLight:
        return GlyphKind::Spot;
    case DrawableType::kWebLight:
        return GlyphKind::Web;
    case DrawableType::kPointLight:
        break;
    }
    return GlyphKind::Point;
}

double candelaOf(const ZrDbLightData& light, const PhotometricUnits& units) {
    if (!isPhotometric(units.lightingUnits))
        return light.intensity;
    const PhotometricIntensity intensity{.value = light.physicalIntensity,
                                         .method = light.method,
                                         .distance = light.illuminanceDistance,
                                         .isSpot = light.type == DrawableType::kSpotLight,
                                         .lightingUnits = units.lightingUnits,
                                         .unitsPerMillimetre = units.unitsPerMillimetre};
    const double candela = light.intensity * convertIntensity(intensity, PhysicalIntensityMethod::kPeakIntensity);
    return std::isfinite(candela) ? candela : 0;
}

// Lamps have their colours in photometric lighting only.
std::uint32_t rgbOf(const ZrDbLightData& light, const PhotometricUnits& units) {
    if (!isPhotometric(units.lightingUnits))
        return light.lightColor.rgb();
    const double kelvin =
        light.lampType == LampColorType::kKelvin ? light.lampTemperature : temperatureOf(light.lampPreset);
    return filteredRgb(glowRgb(kelvin), light.lightColor.rgb());
}

// The values of a light that may not have been read from the file yet, and need not stay in memory for this.
class LightValues {
public:
    LightValues(db::Database& drawing, const db::ObjectEntry& entity)
        : read_(entity.object == nullptr ? db::readData(drawing, entity) : nullptr),
          data_(static_cast<const ZrDbLightData&>(read_ != nullptr ? *read_ : *entity.object->hostData())) {}
    [[nodiscard]] const ZrDbLightData& get() const { return data_; }

private:
    std::unique_ptr<ZrDbObjectData> read_;
    const ZrDbLightData& data_;
};

bool standsBefore(const LightMark& mark, std::uint32_t number) { return mark.entity < number; }

} // namespace

LightSettings lightSettings(const db::Database& drawing) {
    LightSettings settings;
    const auto lighting = drawing.dictionaryVariable(L"LIGHTINGUNITS");
    settings.units.lightingUnits = lighting == L"1" ? footCandles : lighting == L"2" ? lux : 0;
    const auto units = static_cast<int>(headerNumber(drawing, L"$INSUNITS", 0));
    settings.units.unitsPerMillimetre = units::unitsConversion(kMillimetres, units).value_or(1);
    settings.showsGlyphs = headerNumber(drawing, L"$LIGHTGLYPHDISPLAY", 1) != 0;
    return settings;
}

bool isLight(const db::Database& drawing, const db::ObjectEntry& entity) {
    if (entity.object != nullptr)
        return entity.object->isKindOf(ZrDbLight::desc());
    return drawing.file().typeName(entity.type) == "LIGHT";
}

void LightMarks::start(const LightSettings& settings) {
    *this = LightMarks();
    settings_ = settings;
}

void LightMarks::put(std::uint32_t number, db::Database& drawing, db::ObjectEntry& entity, LayerLooks& looks) {
    if (!isLight(drawing, entity))
        return;
    const auto place = std::lower_bound(marks_.begin(), marks_.end(), number, standsBefore);
    const bool isKnown = place != marks_.end() && place->entity == number;
    if (entity.erased) {
        if (isKnown) {
            place->id = ZrDbObjectId();
            anyErased_ = true;
        }
        return;
    }
    Light light = make(number, entity, LightValues(drawing, entity).get(), looks);
    if (isKnown) {
        sources_[static_cast<std::size_t>(place - marks_.begin())] = light.source;
        *place = light.mark;
    } else {
        waiting_.push_back(light);
    }
}

LightMarks::Light LightMarks::make(std::uint32_t number, const db::ObjectEntry& entity, const ZrDbLightData& data,
                                   LayerLooks& looks) {
    constexpr double kShortest = 1e-12;
    Light light;
    LightMark& mark = light.mark;
    mark.id = ZrDbObjectId(const_cast<db::ObjectEntry*>(&entity));
    mark.entity = number;
    mark.kind = kindOf(data.type);
    mark.position = data.position;
    mark.target = data.target;
    const ZrGeVector3d direction = data.target - data.position;
    mark.direction = direction.length() > kShortest ? direction.normal(ZrGeTol(0, 0)) : -ZrGeVector3d::kZAxis;
    mark.hasTarget = data.hasTarget;
    mark.hotspot = data.hotspot;
    mark.falloff = data.falloff;
    mark.rgb = rgbOf(data, settings_.units);
    mark.candela = candelaOf(data, settings_.units);
    mark.isOn = data.on;
    takeWeb(mark, data);
    light.source = {looks.numberOf(data.layer), data.glyph, data.visible};
    mark.isGlyphShown = isGlyphShown(mark, light.source, looks);
    return light;
}

void LightMarks::takeWeb(LightMark& mark, const ZrDbLightData& data) {
    if (mark.kind != GlyphKind::Web)
        return;
    mark.distribution = distributions_.of(data.webFile);
    ZrGePoint3d origin;
    webPlacement(mark.position, mark.direction, data.webRotation)
        .getCoordSystem(origin, mark.axes[0], mark.axes[1], mark.axes[2]);
}

bool LightMarks::isGlyphShown(const LightMark& mark, const Source& source, const LayerLooks& looks) const {
    // Light that comes from everywhere has no place.
    if (mark.kind == GlyphKind::Distant || !source.visible || !looks.at(source.layer).visible)
        return false;
    return source.glyph == GlyphDisplay::kAutomatic ? settings_.showsGlyphs : source.glyph == GlyphDisplay::kOn;
}

void LightMarks::settle() {
    distributions_.lookAgain();
    if (waiting_.empty() && !anyErased_)
        return;
    std::sort(waiting_.begin(), waiting_.end(),
              [](const Light& a, const Light& b) { return a.mark.entity < b.mark.entity; });
    std::vector<LightMark> marks;
    std::vector<Source> sources;
    marks.reserve(marks_.size() + waiting_.size());
    sources.reserve(marks_.size() + waiting_.size());
    const auto add = [&](const LightMark& mark, const Source& source) {
        marks.push_back(mark);
        sources.push_back(source);
    };
    auto next = waiting_.begin();
    for (std::size_t i = 0; i < marks_.size(); ++i) {
        for (; next != waiting_.end() && next->mark.entity < marks_[i].entity; ++next)
            add(next->mark, next->source);
        if (!marks_[i].id.isNull())
            add(marks_[i], sources_[i]);
    }
    for (; next != waiting_.end(); ++next)
        add(next->mark, next->source);
    marks_ = std::move(marks);
    sources_ = std::move(sources);
    waiting_.clear();
    anyErased_ = false;
}

void LightMarks::refreshGlyphs(const LayerLooks& looks) {
    for (std::size_t i = 0; i < marks_.size(); ++i)
        marks_[i].isGlyphShown = isGlyphShown(marks_[i], sources_[i], looks);
}

Box LightMarks::extents() const {
    Box box;
    for (const LightMark& mark : marks_)
        if (mark.isGlyphShown)
            box.add(mark.position);
    return box;
}

} // namespace quor::gs
