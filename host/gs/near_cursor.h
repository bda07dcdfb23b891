// What of a scene is near a place of the picture, and how near.
#pragma once

#include "host/gs/cut_away.h"
#include "host/gs/picking.h"

namespace quor::gs {

struct NearEntity {
    std::uint32_t entity = 0;
    double distance = 0; // pixels
    double depth = 0;    // of the nearest place, as ScreenPoint has it
};

// Entities with lines within `radius` of the cursor, each once, the nearest first; of those that are as near within
// half a pixel, the one in front.
[[nodiscard]] std::vector<NearEntity> linesNear(const SceneData& scene, const Projector& projector, double x, double y,
                                                double radius);

// The glyph that is meant.
[[nodiscard]] std::optional<NearEntity> glyphAt(const SceneData& scene, const Projector& projector, double x, double y,
                                                double radius);

// A face under the cursor.
struct HitFace : NearEntity {
    ZrGePoint3d at; // where the ray meets it
};
// The foremost one that is not cut away; without `all`, only of what has no lines.
[[nodiscard]] std::optional<HitFace> faceAt(const SceneData& scene, const Projector& projector, double x, double y,
                                            bool all = true, const CutAway& cutAway = {});

// Lines so much behind a face still belong to its outline, when they are up to `radius` pixels from where it was hit.
[[nodiscard]] double hidingMargin(const Projector& projector, const NearEntity& face, double radius);

} // namespace quor::gs
