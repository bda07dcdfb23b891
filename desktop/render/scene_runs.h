// The part of a scene that can be on the picture, cut into pieces of work.
#pragma once

#include "desktop/render/view_transform.h"

#include <vector>

namespace quor::desktop {

struct ItemRun {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

// Runs of items in the order of the scene; a piece is some of them, one after the other.
class SceneRuns {
public:
    // Leaves out chunks whose box is beside the picture.
    void collect(const gs::SceneData& scene, const ViewTransform& view);
    [[nodiscard]] std::size_t pieceCount() const { return starts_.empty() ? 0 : starts_.size() - 1; }
    [[nodiscard]] std::span<const ItemRun> piece(std::size_t number) const {
        return std::span(runs_).subspan(starts_[number], starts_[number + 1] - starts_[number]);
    }

private:
    void add(ItemRun run);
    std::vector<ItemRun> runs_;
    std::vector<std::size_t> starts_; // of each piece, and the end
    std::uint32_t itemsInPiece_ = 0;
};

[[nodiscard]] inline gs::Emphasis emphasisOf(const gs::SceneData& scene, std::uint32_t entity) {
    return entity < scene.emphasis.size() ? scene.emphasis[entity] : gs::Emphasis::None;
}

} // namespace quor::desktop
