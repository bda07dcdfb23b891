// The drag that places a light: first its position, then, for the kinds that are aimed by hand, its target.
#pragma once

#include "sdk/db/light.h"
#include "sdk/ed/jig.h"

class CZrLightJig : public ZrEdJig {
public:
    // The light is the caller's. `kind`, not owned, is one of the words "PointLight", "SpotLight", "TargetPoint",
    // "FreeSpot", "WebLight" and "FreeWeb", without regard to case.
    CZrLightJig(ZrDbLight* light, const wchar_t* kind) : m_light(light), m_kind(kind) {}

    DragStatus sampler() override;
    bool update() override;
    [[nodiscard]] ZrDbEntity* entity() const override { return m_light; }

    // Asks for the position; Enter puts the light at the world's origin. False when it was cancelled.
    [[nodiscard]] bool dragSource();
    // Asks for the target; Enter aims the light 10 down the z axis of the UCS. False when it was cancelled.
    [[nodiscard]] bool dragTarget();

private:
    [[nodiscard]] bool isKind(const wchar_t* word) const;
    DragStatus sampleSource();
    DragStatus sampleTarget();

    bool m_targetMode = false;
    ZrDbLight* m_light;
    ZrGePoint3d m_source; // world coordinates
    ZrGePoint3d m_target;
    const wchar_t* m_kind;
};
