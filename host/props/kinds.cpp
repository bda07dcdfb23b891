#include "host/props/kinds.h"

#include "host/db/database.h"
#include "host/texts/properties.h"
#include "sdk/db/face.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"

#include <array>

namespace quor::props {

EntityKind kindOf(const ZrDbEntity& entity) {
    const ZrRxClass* const kind = entity.isA();
    if (kind == ZrDbLight::desc())
        return EntityKind::Light;
    if (kind == ZrDbLine::desc())
        return EntityKind::Line;
    return kind == ZrDbFace::desc() ? EntityKind::Face : EntityKind::Other;
}

ZrString kindName(const ZrDbEntity& entity) {
    switch (kindOf(entity)) {
    case EntityKind::Light:
        return texts::kKindLight.get();
    case EntityKind::Line:
        return texts::kKindLine.get();
    case EntityKind::Face:
        return texts::kKindFace.get();
    case EntityKind::Other:
        break;
    }
    return entity.database()->host().typeName(entity.objectId());
}

std::span<const std::span<const Property>> propertiesOf(EntityKind kind) {
    using Tables = std::span<const Property>;
    static const std::array<Tables, 5> ofLights{generalProperties(), lightProperties(), photometricProperties(),
                                                lightGeometry(), lightDetails()};
    static const std::array<Tables, 2> ofLines{generalProperties(), lineProperties()};
    static const std::array<Tables, 2> ofFaces{generalProperties(), faceProperties()};
    static const std::array<Tables, 1> ofOthers{generalProperties()};
    switch (kind) {
    case EntityKind::Light:
        return ofLights;
    case EntityKind::Line:
        return ofLines;
    case EntityKind::Face:
        return ofFaces;
    case EntityKind::Other:
        break;
    }
    return ofOthers;
}

Refusal refusalOf(Quor::ErrorStatus status) {
    return status == Quor::eOk ? Refusal() : Refusal(texts::kValueRefused.get());
}

} // namespace quor::props
