#include "desktop/render/scene_lines.h"

#include "desktop/render/colors.h"

namespace quor::desktop {
namespace {

struct LineLook {
    std::uint32_t color = 0;
    float width = 1;
    float nearer = 0; // share by which the line stands before what is at the same place
};

// Edges have to win over their faces, lines that stand out over the others: over those at the same place, and over all
// where no faces hide anything.
constexpr float kBeforeFaces = 4e-5F;
constexpr float kBeforeLines = 4e-4F;
constexpr float kBeforeAll = 1e6F;

class LineLooks {
public:
    explicit LineLooks(const RenderOptions& options) : options_(options), palette_(options.colors) {
        const auto ratio = static_cast<float>(options.pixelRatio);
        thin_ = std::max(1.0F, options.isMoving ? std::round(ratio) : ratio);
        thick_ = thin_ + std::max(1.0F, std::round(ratio));
        before_ = options.style == gs::VisualStyle::Wireframe ? kBeforeAll : kBeforeLines;
    }

    [[nodiscard]] LineLook of(const gs::SceneItem& item, gs::Emphasis emphasis) {
        switch (emphasis) {
        case gs::Emphasis::Hovered:
            return {options_.colors.hovered | 0xFF000000U, thick_, before_};
        case gs::Emphasis::Selected:
            return {options_.colors.selected | 0xFF000000U, thick_, before_};
        case gs::Emphasis::None:
            break;
        }
        const bool isEdge = gs::showsFaces(options_.style) && item.triangleCount > 0;
        const std::uint32_t color =
            isEdge ? Palette::edgeColor(Palette::faceColor(item.rgb)) : palette_.lineColor(item.rgb);
        return {color, thin_, kBeforeFaces};
    }

private:
    const RenderOptions& options_;
    Palette palette_;
    float thin_ = 1;
    float thick_ = 2;
    float before_ = kBeforeLines;
};

constexpr float kMargin = 4; // pixels around the picture to which lines are cut

} // namespace

void collectLines(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options,
                  std::span<const ItemRun> runs, BandBlock<ScreenLine>& block) {
    LineLooks looks(options);
    const float margin = kMargin * std::max(1.0F, static_cast<float>(options.pixelRatio));
    for (const ItemRun& run : runs) {
        for (const gs::SceneItem& item : scene.items.subspan(run.first, run.count)) {
            const bool isThere = std::uint64_t{item.firstLine} + item.lineCount <= scene.lines.size();
            if (!item.visible || item.lineCount == 0 || !isThere)
                continue;
            const LineLook look = looks.of(item, emphasisOf(scene, item.entity));
            const std::uint32_t owner = (item.entity & 0x7FFFFFU) + 1;
            for (const gs::SceneLine& line : scene.lines.subspan(item.firstLine, item.lineCount)) {
                std::optional<LineEnds> ends = projectLine(view, line, margin);
                if (!ends)
                    continue;
                ends->depth0 = view.nearer(ends->depth0, look.nearer);
                ends->depth1 = view.nearer(ends->depth1, look.nearer);
                block.add({*ends, look.color, owner, look.width}, std::min(ends->y0, ends->y1) - look.width,
                          std::max(ends->y0, ends->y1) + look.width);
            }
        }
    }
}

} // namespace quor::desktop
