#include "desktop/viewport/hover_sketch.h"

#include "host/db/object_entry.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

// Two entities: lines far from the origin, and a light.
class HoverSketchTest : public testing::Test {
protected:
    [[nodiscard]] gs::SceneData scene() const {
        gs::SceneData data;
        data.origin = {1000, 0, 0};
        data.items = items_;
        data.lines = lines_;
        data.triangles = triangles_;
        data.lights = lights_;
        data.entities = entities_;
        return data;
    }

    db::ObjectEntry entries_[2];
    std::vector<ZrDbObjectId> entities_{ZrDbObjectId(&entries_[0]), ZrDbObjectId(&entries_[1])};
    std::vector<gs::SceneLine> lines_{{{1, 2, 3}, {4, 5, 6}}};
    std::vector<gs::SceneTriangle> triangles_{{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}};
    std::vector<gs::SceneItem> items_{{.entity = 0, .lineCount = 1}};
    std::vector<gs::LightMark> lights_{light()};

private:
    gs::LightMark light() const {
        gs::LightMark mark;
        mark.id = entities_[1];
        mark.entity = 1;
        return mark;
    }
};

TEST_F(HoverSketchTest, TheNullIdIsNothing) {
    EXPECT_TRUE(hoverSketch(scene(), {}).lines.empty());
    EXPECT_FALSE(hoverSketch(scene(), {}).light.has_value());
}

TEST_F(HoverSketchTest, LinesStandInTheWorld) {
    const HoverSketch sketch = hoverSketch(scene(), entities_[0]);
    EXPECT_EQ(sketch.lines, (std::vector<ZrGePoint3d>{{1001, 2, 3}, {1004, 5, 6}}));
    EXPECT_FALSE(sketch.light.has_value());
}

TEST_F(HoverSketchTest, FacesWithoutLinesShowTheirEdges) {
    items_[0].lineCount = 0;
    items_[0].triangleCount = 1;
    EXPECT_EQ(hoverSketch(scene(), entities_[0]).lines.size(), 6U);
}

TEST_F(HoverSketchTest, WhatIsOnAHiddenLayerIsNotShown) {
    items_[0].visible = false;
    EXPECT_TRUE(hoverSketch(scene(), entities_[0]).lines.empty());
}

TEST_F(HoverSketchTest, ALightIsItsMark) {
    EXPECT_TRUE(hoverSketch(scene(), entities_[1]).light.has_value());
    lights_[0].isGlyphShown = false;
    EXPECT_FALSE(hoverSketch(scene(), entities_[1]).light.has_value());
}

} // namespace
} // namespace quor::desktop::test
