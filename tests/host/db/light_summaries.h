// The lights of a drawing and their summaries, for the tests of these.
#pragma once

#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db::drawings {

inline std::vector<ZrDbObjectId> lightsOf(Database& database) {
    std::vector<ZrDbObjectId> lights;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database.interface().modelSpaceId(), ZrDb::kForRead);
    for (auto at = space->newIterator(ZrDbLight::desc()); !at->done(); at->step())
        lights.push_back(at->entityId());
    return lights;
}

inline ZrDbLightSummary summaryOf(ZrDbObjectId id) {
    ZrDbLightSummary summary;
    EXPECT_EQ(zrdbLightSummary(id, summary), Quor::eOk);
    return summary;
}

// Lists every light first, opens it then.
inline void expectSummariesToEqualTheLights(Database& database) {
    for (const ZrDbObjectId id : lightsOf(database)) {
        const ZrDbLightSummary summary = summaryOf(id);
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForRead);
        EXPECT_EQ(summary.name, light->name());
        EXPECT_EQ(summary.type, static_cast<int>(light->lightType()));
    }
}

} // namespace quor::db::drawings
