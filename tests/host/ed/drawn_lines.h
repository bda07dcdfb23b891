// Lines to select, and a count of how often listeners were told that the selection has changed.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/line.h"
#include "sdk/ed/selection.h"
#include "sdk/rx/command.h"

#include <gtest/gtest.h>
#include <memory>

namespace quor::test {

class SelectionCounter final : public ZrEdSelectionReactor {
public:
    void impliedSelectionChanged() override { ++changes; }
    int changes = 0;
};

// A line of length 1 at x, in the current space.
inline ZrDbObjectId addLine(double x = 0) {
    auto line = std::make_unique<ZrDbLine>(ZrGePoint3d(x, 0, 0), ZrGePoint3d(x, 1, 0));
    const ZrDbObjectId id = RxCommand::postToDb(*line, nullptr, nullptr, true);
    EXPECT_FALSE(id.isNull());
    (void)line.release(); // the drawing owns it now
    return id;
}

inline void erase(ZrDbObjectId id) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForWrite);
    entity->erase();
}

} // namespace quor::test
