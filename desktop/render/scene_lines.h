// The lines of a scene that are seen, in their colours and widths, sorted by bands.
#pragma once

#include "desktop/render/band_blocks.h"
#include "desktop/render/line_raster.h"
#include "desktop/render/scene_runs.h"

namespace quor::desktop {

// Projects the lines of the items in the runs and adds them to the block.
void collectLines(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options,
                  std::span<const ItemRun> runs, BandBlock<ScreenLine>& block);

} // namespace quor::desktop
