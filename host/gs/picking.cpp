#include "host/gs/picking.h"

#include "host/db/database.h"
#include "host/gs/near_cursor.h"
#include "host/gs/pick_window.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quor::gs {

namespace {

// Entities of which a part is inside, or all that is seen of them.
class Found {
public:
    explicit Found(std::size_t entities) : states_(entities, State::Unseen) {}

    void note(std::uint32_t entity, bool inside) {
        State& state = states_[entity];
        if (state == State::Unseen)
            state = inside ? State::Inside : State::Outside;
        else if ((state == State::Inside) != inside)
            state = State::Both;
    }
    [[nodiscard]] bool isSettled(std::uint32_t entity, RectPick how) const {
        const State state = states_[entity];
        return state == State::Both || state == (how == RectPick::Window ? State::Outside : State::Inside);
    }
    [[nodiscard]] bool isFound(std::size_t entity, RectPick how) const {
        return states_[entity] == State::Inside || (states_[entity] == State::Both && how == RectPick::Crossing);
    }

private:
    enum class State : std::uint8_t { Unseen, Inside, Outside, Both };
    std::vector<State> states_;
};

bool liesInside(const SceneData& scene, const SceneItem& item, const PickWindow& window) {
    const auto lines = scene.lines.subspan(item.firstLine, item.lineCount);
    const auto triangles = scene.triangles.subspan(item.firstTriangle, item.triangleCount);
    return std::all_of(lines.begin(), lines.end(),
                       [&](const SceneLine& line) { return window.holds(line.a) && window.holds(line.b); }) &&
           std::all_of(triangles.begin(), triangles.end(), [&](const SceneTriangle& each) {
               return window.holds(each.a) && window.holds(each.b) && window.holds(each.c);
           });
}

bool isTouched(const SceneData& scene, const SceneItem& item, const PickWindow& window, bool faces) {
    const auto lines = scene.lines.subspan(item.firstLine, item.lineCount);
    if (std::any_of(lines.begin(), lines.end(), [&](const SceneLine& line) { return window.touches(line); }))
        return true;
    // What has no lines is seen by its faces alone.
    const auto triangles = scene.triangles.subspan(item.firstTriangle, item.triangleCount);
    return (faces || lines.empty()) &&
           std::any_of(triangles.begin(), triangles.end(),
                       [&](const SceneTriangle& triangle) { return window.touches(triangle); });
}

void findItems(Found& found, const SceneData& scene, const PickWindow& window, RectPick how, bool faces) {
    for (const SceneChunk& chunk : scene.chunks) {
        const bool mayHold = window.mayHold(chunk);
        if (!mayHold && how == RectPick::Crossing)
            continue;
        for (const SceneItem& item : scene.items.subspan(chunk.firstItem, chunk.itemCount)) {
            if (!item.visible || item.lineCount + item.triangleCount == 0 || found.isSettled(item.entity, how))
                continue;
            const bool inside = mayHold && (how == RectPick::Window ? liesInside(scene, item, window)
                                                                    : isTouched(scene, item, window, faces));
            found.note(item.entity, inside);
        }
    }
}

// A glyph is as large as it is drawn.
void findGlyphs(Found& found, const SceneData& scene, const Projector& projector, const PixelRect& rect, RectPick how,
                double radius) {
    const double margin = how == RectPick::Window ? -radius : radius;
    const double left = std::min(rect.left, rect.right) - margin;
    const double right = std::max(rect.left, rect.right) + margin;
    const double top = std::min(rect.top, rect.bottom) - margin;
    const double bottom = std::max(rect.top, rect.bottom) + margin;
    for (const LightMark& mark : scene.lights) {
        if (!mark.isGlyphShown)
            continue;
        const auto at = projector.toScreen(mark.position);
        found.note(mark.entity, at && at->x >= left && at->x <= right && at->y >= top && at->y <= bottom);
    }
}

} // namespace

ZrDbObjectId pickAt(const SceneData& scene, const Projector& projector, double x, double y,
                    const PickOptions& options) {
    if (const auto glyph = glyphAt(scene, projector, x, y, options.glyphRadius))
        return scene.entities[glyph->entity];
    const CutAway cutAway = options.isOpen ? CutAway(scene, projector.camera()) : CutAway();
    const std::optional<NearEntity> face = faceAt(scene, projector, x, y, options.faces, cutAway);
    const double hiddenFrom = options.faces && face ? face->depth + hidingMargin(projector, *face, options.radius)
                                                    : std::numeric_limits<double>::infinity();
    const std::vector<NearEntity> lines = linesNear(scene, projector, x, y, options.radius);
    const auto seen =
        std::find_if(lines.begin(), lines.end(), [&](const NearEntity& line) { return line.depth <= hiddenFrom; });
    if (seen != lines.end())
        return scene.entities[seen->entity];
    return face ? scene.entities[face->entity] : ZrDbObjectId();
}

std::vector<ZrDbObjectId> pickIn(const SceneData& scene, const Projector& projector, const PixelRect& rect,
                                 RectPick how, const PickOptions& options) {
    Found found(scene.entities.size());
    findItems(found, scene, PickWindow(projector, scene.origin, rect), how, options.faces);
    findGlyphs(found, scene, projector, rect, how, options.glyphRadius);
    std::vector<ZrDbObjectId> ids;
    for (std::size_t i = 0; i < scene.entities.size(); ++i)
        if (found.isFound(i, how) && !scene.entities[i].isNull())
            ids.push_back(scene.entities[i]);
    return ids;
}

} // namespace quor::gs
