// What the tables of properties of lights share.
#pragma once

#include "host/props/property.h"
#include "sdk/db/light.h"

namespace quor::props {

using E = const ZrDbEntity&;
using C = const Context&;
using Shadows = ZrGiShadowParameters;
using Attenuation = ZrGiLightAttenuation;

// The tables of lights get lights only.
[[nodiscard]] inline const ZrDbLight& lit(const ZrDbEntity& entity) { return static_cast<const ZrDbLight&>(entity); }
[[nodiscard]] inline ZrDbLight& lit(ZrDbEntity& entity) { return static_cast<ZrDbLight&>(entity); }

[[nodiscard]] inline Shadows shadowsOf(const ZrDbEntity& entity) {
    Shadows shadows;
    lit(entity).shadowParameters(shadows);
    return shadows;
}

// Changes a copy of the light's record and gives it back; `change` answers whether the record took the value.
template <class Change>
Refusal changeShadows(ZrDbEntity& entity, const Change& change) {
    Shadows shadows = shadowsOf(entity);
    return refusalOf(change(shadows) ? lit(entity).setShadowParameters(shadows) : Quor::eInvalidInput);
}
template <class Change>
Refusal changeAttenuation(ZrDbEntity& entity, const Change& change) {
    Attenuation attenuation = lit(entity).lightAttenuation();
    return refusalOf(change(attenuation) ? lit(entity).setLightAttenuation(attenuation) : Quor::eInvalidInput);
}

[[nodiscard]] inline bool isDistant(E entity) { return lit(entity).lightType() == DrawableType::kDistantLight; }
[[nodiscard]] inline bool isSomewhere(E entity, C) { return !isDistant(entity); }

} // namespace quor::props
