// What can be seen of a drawing, as far as layers and the objects themselves decide it.
#pragma once

#include "host/db/database.h"
#include "host/gs/layer_looks.h"
#include "host/gs/shapes/source.h"

namespace quor::ed {

class InSight {
public:
    explicit InSight(db::Database& drawing) : drawing_(drawing), finder_(drawing), layers_(drawing) {}

    // Whether the entity is visible, and its layer is on and thawed. Nothing is opened.
    [[nodiscard]] bool holds(const db::ObjectEntry& entity);

private:
    [[nodiscard]] gs::Look lookOf(const db::ObjectEntry& entity);

    db::Database& drawing_;
    gs::LayerFinder finder_;
    gs::LayerLooks layers_;
};

} // namespace quor::ed
