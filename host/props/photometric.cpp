// The photometric properties of lights: they count while LIGHTINGUNITS is not 0. Each of the three measures shows what
// the light gives, converted where the light is given in another one; a number that is entered into one of them makes
// it the measure in which the light is given.
#include "host/props/kinds.h"
#include "host/props/lamp_color.h"
#include "host/props/light_facts.h"
#include "host/props/light_rows.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"

namespace quor::props {

namespace {

using Method = PhysicalIntensityMethod;

constexpr int kDigitsOfConverted = 6;
constexpr Range kLampTemperatures{1000, 20000};

bool isInUse(E, C context) { return isPhotometric(context.units.lightingUnits); }
bool hasDistance(E e, C context) { return isInUse(e, context) && !isDistant(e); }
bool hasPreset(E e, C context) { return isInUse(e, context) && lit(e).lampColorType() == LampColorType::kPreset; }
bool hasKelvin(E e, C context) { return isInUse(e, context) && lit(e).lampColorType() == LampColorType::kKelvin; }

// Parallel light has neither flux nor illuminance, unless the drawing says so.
template <Method Wanted>
bool hasMeasure(E e, C context) {
    return isInUse(e, context) && (!isDistant(e) || lit(e).physicalIntensityMethod() == Wanted);
}

template <Method Wanted>
Value readMeasure(E e, C context) {
    const std::optional<double> value = intensityOf(lit(e), Wanted, context.units);
    if (!value)
        return {};
    return lit(e).physicalIntensityMethod() == Wanted ? *value : roundedTo(kDigitsOfConverted, *value);
}

Quor::ErrorStatus give(ZrDbLight& light, Method method, double value) {
    const Quor::ErrorStatus status = light.setPhysicalIntensityMethod(method);
    return status == Quor::eOk ? light.setPhysicalIntensity(value) : status;
}

template <Method Wanted>
Refusal writeMeasure(ZrDbEntity& e, const Value& value, C) {
    return refusalOf(give(lit(e), Wanted, std::get<double>(value)));
}

// The light shines as before.
Refusal writeMethod(ZrDbEntity& e, const Value& value, C context) {
    const auto method = static_cast<Method>(std::get<int>(value));
    const std::optional<double> converted = intensityOf(lit(e), method, context.units);
    if (!converted)
        return fill(texts::kNoConversion, lit(e).name());
    return refusalOf(give(lit(e), method, *converted));
}

template <Method Wanted, Quantity Measure>
constexpr Property measure(std::string_view id, const Text& label) {
    return {.id = id,
            .group = Group::Photometric,
            .label = label,
            .editor = Editor::Number,
            .quantity = Measure,
            .range = kNotNegative,
            .read = readMeasure<Wanted>,
            .write = writeMeasure<Wanted>,
            .counts = hasMeasure<Wanted>};
}

constexpr Property kRows[] = {
    {.id = "photometric.given",
     .group = Group::Photometric,
     .label = texts::kRowGivenAs,
     .editor = Editor::Choice,
     .choices = texts::kGivenAs,
     .read = [](E e, C) -> Value { return static_cast<int>(lit(e).physicalIntensityMethod()); },
     .write = writeMethod,
     .counts = isInUse},
    measure<Method::kPeakIntensity, Quantity::Candela>("photometric.candela", texts::kRowCandela),
    measure<Method::kFlux, Quantity::Lumen>("photometric.lumen", texts::kRowLumen),
    measure<Method::kIlluminance, Quantity::Illuminance>("photometric.illuminance", texts::kRowIlluminance),
    {.id = "photometric.distance",
     .group = Group::Photometric,
     .label = texts::kLightDistance,
     .editor = Editor::Number,
     .quantity = Quantity::Length,
     .range = kNotNegative,
     .read = [](E e, C) -> Value { return lit(e).illuminanceDistance(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setIlluminanceDistance(std::get<double>(value))); },
     .counts = hasDistance},
    {.id = "photometric.lamp",
     .group = Group::Photometric,
     .label = texts::kLightLamp,
     .editor = Editor::Choice,
     .choices = texts::kLampColors,
     .read = [](E e, C) -> Value { return static_cast<int>(lit(e).lampColorType()); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setLampColorType(static_cast<LampColorType>(std::get<int>(value)))); },
     .counts = isInUse},
    {.id = "photometric.preset",
     .group = Group::Photometric,
     .label = texts::kLightLampPreset,
     .editor = Editor::Choice,
     .choices = texts::kLampPresets,
     .read = [](E e, C) -> Value { return static_cast<int>(lit(e).lampColorPreset()); },
     .write =
         [](ZrDbEntity& e, const Value& value, C) {
             return refusalOf(lit(e).setLampColorPreset(static_cast<LampColorPreset>(std::get<int>(value))));
         },
     .counts = hasPreset},
    {.id = "photometric.kelvin",
     .group = Group::Photometric,
     .label = texts::kLightLampKelvin,
     .editor = Editor::Number,
     .quantity = Quantity::Kelvin,
     .range = kLampTemperatures,
     .read = [](E e, C) -> Value { return lit(e).lampColorTemp(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setLampColorTemp(std::get<double>(value))); },
     .counts = hasKelvin},
    {.id = "photometric.result",
     .group = Group::Photometric,
     .label = texts::kRowResultingColor,
     .read = [](E e, C) -> Value { return resultingColor(lit(e)); },
     .counts = isInUse},
};

} // namespace

std::span<const Property> photometricProperties() { return kRows; }

} // namespace quor::props
