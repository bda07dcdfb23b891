#include "host/gs/shapes/fill.h"

#include "host/gs/shapes/pen.h"

#include <algorithm>

namespace quor::gs {

namespace {

constexpr std::size_t kMostPoints = 2000;
constexpr std::size_t kMostCorners = 3 * 20'000;

// Not horizontal.
struct Edge {
    ZrGePoint3d low;
    ZrGePoint3d high;
    [[nodiscard]] double xAt(double y) const { return low.x + (high.x - low.x) * ((y - low.y) / (high.y - low.y)); }
};

std::vector<Edge> edgesOf(std::span<const Piece> pieces) {
    std::vector<Edge> edges;
    for (const Piece& piece : pieces)
        for (std::size_t i = 1; i < piece.size(); ++i) {
            const ZrGePoint3d& a = piece[i - 1];
            const ZrGePoint3d& b = piece[i];
            if (a.y < b.y)
                edges.push_back({a, b});
            else if (b.y < a.y)
                edges.push_back({b, a});
        }
    std::ranges::sort(edges, {}, [](const Edge& edge) { return edge.low.y; });
    return edges;
}

std::vector<double> heightsOf(std::span<const Edge> edges) {
    std::vector<double> heights;
    for (const Edge& edge : edges)
        heights.insert(heights.end(), {edge.low.y, edge.high.y});
    std::ranges::sort(heights);
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
    return heights;
}

// Between two heights, no edge begins or ends: every second gap between edges is inside.
void fillSlab(std::vector<const Edge*>& active, double low, double high, std::vector<ZrGePoint3d>& triangles) {
    const double middle = low + (high - low) / 2;
    std::ranges::sort(active, {}, [&](const Edge* edge) { return edge->xAt(middle); });
    for (std::size_t i = 1; i < active.size(); i += 2) {
        const Edge& left = *active[i - 1];
        const Edge& right = *active[i];
        const double z = left.low.z;
        const ZrGePoint3d lowLeft(left.xAt(low), low, z);
        const ZrGePoint3d lowRight(right.xAt(low), low, z);
        const ZrGePoint3d highLeft(left.xAt(high), high, z);
        const ZrGePoint3d highRight(right.xAt(high), high, z);
        if (lowLeft.x != lowRight.x)
            triangles.insert(triangles.end(), {lowLeft, lowRight, highRight});
        if (highLeft.x != highRight.x)
            triangles.insert(triangles.end(), {lowLeft, highRight, highLeft});
    }
}

} // namespace

std::optional<std::vector<ZrGePoint3d>> filled(std::span<const Piece> pieces) {
    std::size_t points = 0;
    for (const Piece& piece : pieces) {
        if (!std::ranges::all_of(piece, isDrawable))
            return std::nullopt;
        points += piece.size();
    }
    if (points > kMostPoints)
        return std::nullopt;
    const std::vector<Edge> edges = edgesOf(pieces);
    const std::vector<double> heights = heightsOf(edges);
    std::vector<ZrGePoint3d> triangles;
    std::vector<const Edge*> active;
    auto next = edges.begin();
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const double low = heights[i - 1];
        std::erase_if(active, [&](const Edge* edge) { return edge->high.y <= low; });
        for (; next != edges.end() && next->low.y <= low; ++next)
            active.push_back(&*next);
        fillSlab(active, low, heights[i], triangles);
        if (triangles.size() > kMostCorners)
            return std::nullopt;
    }
    return triangles;
}

} // namespace quor::gs
