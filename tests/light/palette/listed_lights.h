// A drawing with lights, and the rows of a list of them. What is done to a light here is told to the rows only by
// update().
#pragma once

#include "light/palette/light_rows.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quor::test {

// A light of a class of its own that drawings hold as lights.
class OtherLight final : public ZrDbLight {
public:
    static ZrRxClass* desc() {
        static ZrRxClass description(L"OtherLight", ZrDbLight::desc(), L"LIGHT");
        return &description;
    }
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }
};

class ListedLights : public testing::Test {
protected:
    using Names = std::vector<ZrString>;
    using Numbers = std::vector<int>;

    ListedLights() {
        light::rowOrder = {};
        list.Create({.style = LVS_REPORT});
        list.InsertColumn(0, L"icon", 0, 50);
        list.InsertColumn(1, L"name", 0, 120);
    }

    // A light of the drawing that the list does not show yet.
    ZrDbObjectId draw(const ZrString& name, int type = 2) {
        return drawIn(zrdbWorkingDatabase()->modelSpaceId(), std::make_unique<ZrDbLight>(), name, type);
    }
    ZrDbObjectId drawIn(ZrDbObjectId block, std::unique_ptr<ZrDbLight> light, const ZrString& name, int type = 2) {
        light->setName(name);
        light->setLightType(type);
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(block, ZrDb::kForWrite);
        ZrDbObjectId id;
        ZrDbLight* appended = light.release();
        EXPECT_EQ(space->appendZrDbEntity(id, appended), Quor::eOk);
        appended->close();
        return id;
    }
    void rename(ZrDbObjectId id, const ZrString& name) {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite, true);
        EXPECT_EQ(light->setName(name), Quor::eOk);
    }
    void setType(ZrDbObjectId id, int type) {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite, true);
        EXPECT_EQ(light->setLightType(type), Quor::eOk);
    }
    void erase(ZrDbObjectId id, bool erasing = true) {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite, true);
        EXPECT_EQ(light->erase(erasing), Quor::eOk);
    }

    void update(ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForRead, true);
        ASSERT_TRUE(light);
        rows.update(*light);
    }
    // Draws a light and tells the rows.
    ZrDbObjectId add(const ZrString& name, int type = 2) {
        const ZrDbObjectId id = draw(name, type);
        update(id);
        return id;
    }
    void updateRenamed(ZrDbObjectId id, const ZrString& name) {
        rename(id, name);
        update(id);
    }
    void updateErased(ZrDbObjectId id, bool erasing = true) {
        erase(id, erasing);
        update(id);
    }
    // As the dialog fills its list: by name, the smallest first.
    void refreshSorted() {
        light::rowOrder = {.column = 1, .ascending = {false, false}};
        rows.refresh();
        rows.sortByClick(1);
    }

    [[nodiscard]] Names names() const {
        Names found;
        for (int i = 0; i < list.GetItemCount(); ++i)
            found.push_back(list.GetItemText(i, 1));
        return found;
    }
    [[nodiscard]] Numbers images() const {
        Numbers found;
        for (int i = 0; i < list.GetItemCount(); ++i)
            found.push_back(list.GetItemImage(i));
        return found;
    }
    [[nodiscard]] Numbers data() const {
        Numbers found;
        for (int i = 0; i < list.GetItemCount(); ++i)
            found.push_back(static_cast<int>(list.GetItemData(i)));
        return found;
    }
    [[nodiscard]] Numbers selected() const {
        Numbers found;
        for (int i = 0; i < list.GetItemCount(); ++i)
            if (list.GetItemState(i, LVIS_SELECTED) != 0)
                found.push_back(i);
        return found;
    }
    [[nodiscard]] std::vector<ZrDbObjectId> lights() const {
        std::vector<ZrDbObjectId> found;
        found.reserve(static_cast<std::size_t>(list.GetItemCount()));
        for (int i = 0; i < list.GetItemCount(); ++i)
            found.push_back(rows.lightAt(i));
        return found;
    }

    TestSession session;
    CListCtrl list;
    light::LightRows rows{list};
};

} // namespace quor::test
