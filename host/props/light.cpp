// What a light has whatever its kind: its name, whether it shines, how strongly, in which colour.
#include "host/db/light_names.h"
#include "host/props/kinds.h"
#include "host/props/light_facts.h"
#include "host/props/light_name.h"
#include "host/props/light_rows.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"

namespace quor::props {

namespace {

Refusal writeName(ZrDbEntity& entity, const Value& value, C) {
    const ZrString& name = std::get<ZrString>(value);
    if (Refusal refusal = refusalOfName(lit(entity), name))
        return refusal;
    return refusalOf(lit(entity).setName(name));
}

Value kindText(E entity, C) {
    return ZrString(texts::kTableKinds[static_cast<std::size_t>(quor::kindOf(lit(entity)))].get());
}

constexpr Property kRows[] = {
    {.id = "light.name",
     .group = Group::Light,
     .label = texts::kLightName,
     .editor = Editor::Text,
     .read = [](E e, C) -> Value { return lit(e).name(); },
     .write = writeName,
     .oneAtATime = true},
    {.id = "light.kind", .group = Group::Light, .label = texts::kLightKind, .read = kindText},
    {.id = "light.on",
     .group = Group::Light,
     .label = texts::kLightStatus,
     .editor = Editor::YesNo,
     .choices = texts::kOffOn,
     .read = [](E e, C) -> Value { return lit(e).isOn(); },
     .write = [](ZrDbEntity& e, const Value& value, C) { return refusalOf(lit(e).setOn(std::get<bool>(value))); }},
    {.id = "light.shadows",
     .group = Group::Light,
     .label = texts::kLightShadows,
     .editor = Editor::YesNo,
     .choices = texts::kOffOn,
     .read = [](E e, C) -> Value { return shadowsOf(e).shadowsOn(); },
     .write =
         [](ZrDbEntity& e, const Value& value, C) {
             return changeShadows(e, [&](Shadows& shadows) {
                 shadows.setShadowsOn(std::get<bool>(value));
                 return true;
             });
         }},
    {.id = "light.intensity",
     .group = Group::Light,
     .label = texts::kLightIntensity,
     .editor = Editor::Number,
     .range = kNotNegative,
     .read = [](E e, C) -> Value { return lit(e).intensity(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setIntensity(std::get<double>(value))); }},
    {.id = "light.color",
     .group = Group::Light,
     .label = texts::kRowFilterColor,
     .editor = Editor::Color,
     .read = [](E e, C) -> Value { return lit(e).lightColor(); },
     .write = [](ZrDbEntity& e, const Value& value,
                 C) { return refusalOf(lit(e).setLightColor(std::get<ZrCmColor>(value))); }},
};

} // namespace

std::span<const Property> lightProperties() { return kRows; }

} // namespace quor::props
