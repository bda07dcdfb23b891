#include "host/ed/in_sight.h"

namespace quor::ed {

gs::Look InSight::lookOf(const db::ObjectEntry& entity) {
    if (const std::optional<gs::Look> look = gs::lookInMemory(entity))
        return *look;
    if (!entity.isInFile())
        return {};
    return gs::readHead(drawing_.file(), drawing_.file().record(entity.record), finder_).look;
}

bool InSight::holds(const db::ObjectEntry& entity) {
    const gs::Look look = lookOf(entity);
    return look.visible && layers_.at(layers_.numberOf(look.layer)).visible;
}

} // namespace quor::ed
