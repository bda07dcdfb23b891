#include "host/db/movable_kind.h"

#include "host/db/data.h"
#include "host/db/entity_fields.h"
#include "host/db/finite.h"
#include "sdk/db/face.h"
#include "sdk/db/line.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quor::db {

namespace {

constexpr int kEveryVersion = std::numeric_limits<int>::max();

template <class T>
std::unique_ptr<ZrDbEntity> make() {
    return std::make_unique<T>();
}

std::vector<ZrGePoint3d*> lightPoints(ZrDbObjectData& data) {
    auto& light = as<ZrDbLightData>(data);
    return {&light.position, &light.target};
}

std::vector<ZrGePoint3d*> linePoints(ZrDbObjectData& data) {
    auto& line = as<ZrDbLineData>(data);
    return {&line.start, &line.end};
}

std::vector<ZrGePoint3d*> facePoints(ZrDbObjectData& data) {
    auto& corners = as<ZrDbFaceData>(data).vertices;
    return {&corners[0], &corners[1], &corners[2], &corners[3]};
}

constexpr std::array kKinds{
    MovableKind{"LIGHT", make<ZrDbLight>, lightPoints, lightGroups, photometryGroups},
    MovableKind{"LINE", make<ZrDbLine>, linePoints, lineGroups, nullptr},
    MovableKind{"3DFACE", make<ZrDbFace>, facePoints, faceGroups, nullptr},
};

bool sameFields(std::span<const FieldGroup> groups, const ZrDbObjectData& a, const ZrDbObjectData& b,
                const FieldContext& context) {
    return std::ranges::none_of(groups,
                                [&](const FieldGroup& group) { return fieldsDiffer(group.fields, a, b, context); });
}

} // namespace

const MovableKind* movableKind(std::string_view type) {
    const auto* const kind = std::ranges::find(kKinds, type, &MovableKind::type);
    return kind == kKinds.end() ? nullptr : kind;
}

bool sameValues(const MovableKind& kind, const ZrDbObjectData& a, const ZrDbObjectData& b, Database& database) {
    const FieldContext context{database, kEveryVersion};
    return sameFields(kind.groups(), a, b, context) &&
           (kind.furtherGroups == nullptr || sameFields(kind.furtherGroups(), a, b, context));
}

std::unique_ptr<ZrDbObjectData> moved(const MovableKind& kind, const ZrDbObjectData& data, const ZrGeMatrix3d& matrix) {
    std::unique_ptr<ZrDbObjectData> result = data.clone();
    for (ZrGePoint3d* point : kind.points(*result)) {
        *point = matrix * *point;
        if (!isFinite(*point))
            return nullptr;
    }
    return result;
}

} // namespace quor::db
