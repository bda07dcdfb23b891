#include "desktop/render/scene_runs.h"

#include <algorithm>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kItemsOfPiece = 512;
constexpr float kMargin = 8; // pixels by which thick lines reach over their points

} // namespace

void SceneRuns::collect(const gs::SceneData& scene, const ViewTransform& view) {
    runs_.clear();
    starts_.assign(1, 0);
    itemsInPiece_ = 0;
    for (const gs::SceneChunk& chunk : scene.chunks) {
        if (view.isOutside(chunk.low, chunk.high, kMargin))
            continue;
        const auto end = static_cast<std::uint32_t>(
            std::min<std::uint64_t>(std::uint64_t{chunk.firstItem} + chunk.itemCount, scene.items.size()));
        for (std::uint32_t first = chunk.firstItem; first < end; first += kItemsOfPiece)
            add({first, std::min(kItemsOfPiece, end - first)});
    }
    if (itemsInPiece_ > 0)
        starts_.push_back(runs_.size());
}

void SceneRuns::add(ItemRun run) {
    if (itemsInPiece_ > 0 && itemsInPiece_ + run.count > kItemsOfPiece) {
        starts_.push_back(runs_.size());
        itemsInPiece_ = 0;
    }
    runs_.push_back(run);
    itemsInPiece_ += run.count;
}

} // namespace quor::desktop
