#include "desktop/render/shadow_tree.h"

#include <algorithm>

namespace quor::desktop {
namespace {

Vector3 smaller(Vector3 a, Vector3 b) { return {std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z)}; }
Vector3 larger(Vector3 a, Vector3 b) { return {std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z)}; }

bool isUsable(const gs::SceneTriangle& t) {
    constexpr float most = 1e15F;
    const auto isNear = [](const gs::Coordinates& p) {
        return std::all_of(p.begin(), p.end(), [](float value) { return std::abs(value) < most; });
    };
    return isNear(t.a) && isNear(t.b) && isNear(t.c);
}

// Where the way is on one side of the box and where on the other.
struct Part {
    float first = 0;
    float last = 1;
    void cut(float low, float high, float from, float perWay) {
        const float a = (low - from) * perWay;
        const float b = (high - from) * perWay;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
    }
};

} // namespace

void ShadowTree::Bounds::add(Vector3 p) {
    low = smaller(low, p);
    high = larger(high, p);
}

void ShadowTree::clear() {
    triangles_.clear();
    nodes_.clear();
}

void ShadowTree::build(const gs::SceneData& scene) {
    clear();
    for (const gs::SceneItem& item : scene.items) {
        if (!item.visible || std::uint64_t{item.firstTriangle} + item.triangleCount > scene.triangles.size())
            continue;
        if (triangles_.size() + item.triangleCount > kMostTriangles) {
            clear();
            return;
        }
        for (const gs::SceneTriangle& t : scene.triangles.subspan(item.firstTriangle, item.triangleCount)) {
            const Vector3 a(t.a), b(t.b), c(t.c);
            if (isUsable(t))
                triangles_.push_back({a, b - a, c - a, (a + b + c) * (1.0F / 3)});
        }
    }
    if (triangles_.empty())
        return;
    addNode(0, triangles_.size());
    radius_ = length(nodes_.front().bounds.high - nodes_.front().bounds.low) / 2;
}

void ShadowTree::addNode(std::size_t first, std::size_t last) {
    Node node;
    Bounds middles;
    for (std::size_t i = first; i < last; ++i) {
        const Triangle& t = triangles_[i];
        node.bounds.add(t.corner);
        node.bounds.add(t.corner + t.side);
        node.bounds.add(t.corner + t.otherSide);
        middles.add(t.middle);
    }
    const std::size_t number = nodes_.size();
    nodes_.push_back(node);
    if (last - first <= kMostInLeaf) {
        nodes_[number].first = static_cast<std::uint32_t>(first);
        nodes_[number].count = static_cast<std::uint32_t>(last - first);
        return;
    }
    const Vector3 size = middles.high - middles.low;
    float Vector3::*const axis = size.x >= size.y && size.x >= size.z ? &Vector3::x
                                 : size.y >= size.z                   ? &Vector3::y
                                                                      : &Vector3::z;
    const std::size_t half = (first + last) / 2;
    const auto begin = triangles_.begin();
    std::nth_element(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(half),
                     begin + static_cast<std::ptrdiff_t>(last),
                     [axis](const Triangle& a, const Triangle& b) { return a.middle.*axis < b.middle.*axis; });
    addNode(first, half);
    nodes_[number].first = static_cast<std::uint32_t>(nodes_.size());
    addNode(half, last);
}

bool ShadowTree::crosses(const Triangle& triangle, Vector3 from, Vector3 way) {
    const Vector3 across = cross(way, triangle.otherSide);
    const float volume = dot(triangle.side, across);
    if (volume == 0)
        return false;
    const float perVolume = 1 / volume;
    const Vector3 toFrom = from - triangle.corner;
    const float u = dot(toFrom, across) * perVolume;
    const Vector3 over = cross(toFrom, triangle.side);
    const float v = dot(way, over) * perVolume;
    const float along = dot(triangle.otherSide, over) * perVolume;
    return u >= 0 && v >= 0 && u + v <= 1 && along > 0 && along < 1;
}

bool ShadowTree::isBlocked(Vector3 from, Vector3 way) const {
    if (nodes_.empty())
        return false;
    const Vector3 perWay(1 / way.x, 1 / way.y, 1 / way.z);
    std::array<std::uint32_t, 64> waiting{}; // the tree is halved at each step, so it is never that deep
    std::size_t count = 1;
    while (count > 0) {
        const std::uint32_t number = waiting[--count];
        const Node& node = nodes_[number];
        Part part;
        part.cut(node.bounds.low.x, node.bounds.high.x, from.x, perWay.x);
        part.cut(node.bounds.low.y, node.bounds.high.y, from.y, perWay.y);
        part.cut(node.bounds.low.z, node.bounds.high.z, from.z, perWay.z);
        if (part.first > part.last)
            continue;
        if (node.count == 0) {
            waiting[count++] = node.first;
            waiting[count++] = number + 1;
        }
        for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
            if (crosses(triangles_[i], from, way))
                return true;
        }
    }
    return false;
}

} // namespace quor::desktop
