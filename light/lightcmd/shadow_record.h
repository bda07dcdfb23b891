// The shadow record of the light that a command makes. Each prompt reads it, changes one field and writes it back
// whole. Without a light it is that of a new light, and what is written goes nowhere.
#pragma once

#include "sdk/db/light.h"

namespace quor::light {

[[nodiscard]] inline ZrGiShadowParameters shadowsOf(const ZrDbLight* light) {
    ZrGiShadowParameters shadows;
    if (light != nullptr)
        light->shadowParameters(shadows);
    return shadows;
}

inline void writeShadows(ZrDbLight* light, const ZrGiShadowParameters& shadows) {
    if (light != nullptr)
        light->setShadowParameters(shadows);
}

} // namespace quor::light
