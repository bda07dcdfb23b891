// Measures how bright a picture is, at some places of it and with shadows, whether it moves or stands still: the
// exposure stays when a movement ends.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/shading_lights.h"
#include "desktop/render/shadow_tree.h"
#include "desktop/render/thread_pool.h"
#include "desktop/render/tone_mapping.h"

namespace quor::desktop {

// Of many lights, only so many of those that matter most throw shadows.
inline constexpr std::size_t kMostShadowLights = 16;

// The frame holds faces in their own colours and which triangle is seen where.
[[nodiscard]] BrightnessCounts measuredBrightness(Frame& frame, const gs::SceneData& scene, const ViewTransform& view,
                                                  const std::vector<ShadingLight>& lights, const ShadowTree& shadows,
                                                  ThreadPool& threads);

} // namespace quor::desktop
