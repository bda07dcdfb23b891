// The current space of a drawing, ready to be drawn: lines and triangles in small numbers, in chunks that stand close
// together, and a mark for each light. Follows the drawing; what one change costs does not grow with the drawing.
#pragma once

#include "host/gs/camera.h"
#include "host/gs/shape.h"
#include "sdk/db/database.h"

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <vector>

class ZrDbLight;

namespace quor::gs {

struct LightDistribution;

// Coordinates relative to Scene::origin(), so that single precision is enough anywhere in the world.
using Coordinates = std::array<float, 3>;
struct SceneLine {
    Coordinates a, b;
};
struct SceneTriangle {
    Coordinates a, b, c;
};

// What an entity is drawn with: lines and triangles of one colour.
struct SceneItem {
    std::uint32_t entity = 0; // number of the entity in the scene
    std::uint32_t rgb = 0xFFFFFF;
    std::uint32_t firstLine = 0;
    std::uint32_t lineCount = 0;
    std::uint32_t firstTriangle = 0;
    std::uint32_t triangleCount = 0;
    bool visible = true; // its layer is on and thawed
};

// Items that stand together, and the box around them.
struct SceneChunk {
    Coordinates low, high;
    std::uint32_t firstItem = 0;
    std::uint32_t itemCount = 0;
};

// How an entity stands out.
enum class Emphasis : std::uint8_t { None = 0, Hovered = 1, Selected = 2 };

enum class GlyphKind : std::uint8_t { Point, Spot, Web, Distant };

// A light as it is shown and as it shines.
struct LightMark {
    ZrDbObjectId id;
    std::uint32_t entity = 0;
    GlyphKind kind = GlyphKind::Point;
    ZrGePoint3d position;
    ZrGePoint3d target;
    ZrGeVector3d direction; // of length 1
    bool hasTarget = false;
    double hotspot = 0; // full angles, radians
    double falloff = 0;
    std::uint32_t rgb = 0xFFFFFF; // of what it sends out: filter colour times lamp colour
    double candela = 0;           // peak intensity times the intensity factor; the factor alone in generic lighting
    bool isOn = true;
    bool isGlyphShown = true; // by its own setting, LIGHTGLYPHDISPLAY, its visibility and its layer
    // How a web shares the light among the directions; null: evenly. Its luminaire stands along these axes, which are
    // of length 1, and shines along the third one backwards.
    std::shared_ptr<const LightDistribution> distribution;
    std::array<ZrGeVector3d, 3> axes;
};

// All that is to be drawn, as it is at the moment; holds until the scene is updated.
struct SceneData {
    ZrGePoint3d origin; // what the coordinates below are relative to
    std::span<const SceneChunk> chunks;
    std::span<const SceneItem> items;
    std::span<const SceneLine> lines;
    std::span<const SceneTriangle> triangles;
    std::span<const LightMark> lights;      // in drawing order; those that were erased are left out
    std::span<const ZrDbObjectId> entities; // by their number; null for one that does not exist any more
    std::span<const Emphasis> emphasis;     // by the number of the entity
    // The same number means the same contents but for their emphasis; 0: nobody knows.
    std::uint64_t contents = 0;
};

class Scene {
public:
    // Follows the drawing from now on, which has to outlive it.
    explicit Scene(ZrDbDatabase& drawing);
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    // Takes in what has changed since the last time. `progress` is told a share from 0 to 1 where that is much. Whether
    // anything is to be drawn anew.
    bool update(const std::function<void(double)>& progress = {});
    // All anew at the next update.
    void regenerate();

    [[nodiscard]] SceneData data() const;
    // Of what is visible; empty when nothing is.
    [[nodiscard]] Box extents() const;
    // The drawing is too large to be drawn: some of it was left out.
    [[nodiscard]] bool isIncomplete() const;

    void setSelected(const std::vector<ZrDbObjectId>& ids);
    // Null: none.
    void setHovered(ZrDbObjectId id);

    // The lines that a light shows when it is selected: its target line, its cone (hotspot and falloff), its web.
    // Two points each, in the world.
    [[nodiscard]] static std::vector<ZrGePoint3d> lightLines(const ZrDbObjectId& light);
    // Of one that may stand in no drawing yet.
    [[nodiscard]] static std::vector<ZrGePoint3d> lightLines(const ZrDbLight& light);

private:
    class Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quor::gs
