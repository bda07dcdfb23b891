// The faces of a scene that are seen, sorted by bands.
#pragma once

#include "desktop/render/band_blocks.h"
#include "desktop/render/face_raster.h"
#include "desktop/render/scene_runs.h"
#include "host/gs/cut_away.h"

namespace quor::desktop {

// Projects the triangles of the items in the runs and adds them to the block: in the colour that they have under the
// lights of the eye, or in their own colour where the drawing's lights shine later, whatever stands out.
void collectFaces(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options,
                  std::span<const ItemRun> runs, const gs::CutAway& cutAway, BandBlock<ScreenFace>& block);

// Of length 1; zeros for a triangle that is none.
[[nodiscard]] Vector3 normalOf(const gs::SceneTriangle& triangle);

} // namespace quor::desktop
