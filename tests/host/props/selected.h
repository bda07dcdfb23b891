// A drawing with objects in it that are selected, and the rows that tell of them.
#pragma once

#include "host/props/sheet.h"
#include "sdk/db/face.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"
#include "sdk/rx/command.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace quor::props {

class Selected : public testing::Test {
protected:
    template <class T>
    static ZrDbObjectId add(std::unique_ptr<T> entity) {
        const ZrDbObjectId id = RxCommand::postToDb(*entity, nullptr, nullptr, true);
        static_cast<void>(entity.release()); // the drawing's now
        return id;
    }
    static ZrDbObjectId addLight(const ZrString& name = L"Lamp", DrawableType type = DrawableType::kPointLight,
                                 bool hasTarget = false) {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(name);
        light->setLightType(type);
        light->setHasTarget(hasTarget);
        return add(std::move(light));
    }
    static ZrDbObjectId addLine(double x = 0) {
        return add(std::make_unique<ZrDbLine>(ZrGePoint3d(x, 0, 0), ZrGePoint3d(x, 3, 4)));
    }
    static ZrDbObjectId addFace() {
        return add(std::make_unique<ZrDbFace>(ZrGePoint3d(0, 0, 0), ZrGePoint3d(1, 0, 0), ZrGePoint3d(1, 1, 0),
                                              ZrGePoint3d(0, 1, 5)));
    }
    static void select(const ZrDbObjectIdArray& ids) { zredSetImpliedSelection(ids); }

    template <class T = ZrDbLight>
    static ZrDbObjectPointer<T> read(ZrDbObjectId id) {
        return {id, ZrDb::kForRead};
    }
    template <class T = ZrDbLight>
    static ZrDbObjectPointer<T> write(ZrDbObjectId id) {
        return {id, ZrDb::kForWrite};
    }

    // The row of that name; a failure where there is none.
    Row row(std::string_view id) {
        const std::vector<Row>& rows = sheet.rows();
        const auto found = std::ranges::find(rows, id, &Row::id);
        EXPECT_NE(found, rows.end()) << id;
        return found == rows.end() ? Row() : *found;
    }
    ZrString text(std::string_view id) { return row(id).text; }
    bool has(std::string_view id) { return std::ranges::count(sheet.rows(), id, &Row::id) == 1; }
    std::vector<std::string_view> ids() {
        std::vector<std::string_view> found;
        for (const Row& each : sheet.rows())
            found.push_back(each.id);
        return found;
    }
    // Enters a value into a row that is seen.
    Refusal set(std::string_view id, const ZrString& typed) {
        (void)sheet.rows();
        return sheet.set(id, typed);
    }
    db::Journal& journal() { return host.document().drawing().journal(); }

    test::TestSession host{{.language = L"en"}};
    Sheet sheet{host.session()};
};

} // namespace quor::props
