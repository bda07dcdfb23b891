// Whether something stands between two places: the faces of a scene in a tree of boxes.
#pragma once

#include "desktop/render/vector3.h"

#include <vector>

namespace quor::desktop {

class ShadowTree {
public:
    // Takes in the visible faces of the scene; nothing when they are more than can be asked in a picture's time.
    void build(const gs::SceneData& scene);
    void clear();
    [[nodiscard]] bool isEmpty() const { return nodes_.empty(); }
    // Whether a face crosses the way from `from` to `from + way`.
    [[nodiscard]] bool isBlocked(Vector3 from, Vector3 way) const;
    // Half the diagonal of all faces.
    [[nodiscard]] float radius() const { return radius_; }

private:
    static constexpr std::size_t kMostTriangles = 50'000;
    static constexpr std::size_t kMostInLeaf = 4;

    struct Triangle {
        Vector3 corner, side, otherSide, middle;
    };
    struct Bounds {
        Vector3 low{1e30F, 1e30F, 1e30F};
        Vector3 high{-1e30F, -1e30F, -1e30F};
        void add(Vector3 p);
    };
    struct Node {
        Bounds bounds;
        std::uint32_t first = 0; // triangle of a leaf, else the second child; the first one follows its parent
        std::uint32_t count = 0; // of triangles; 0: no leaf
    };
    void addNode(std::size_t first, std::size_t last);
    [[nodiscard]] static bool crosses(const Triangle& triangle, Vector3 from, Vector3 way);
    std::vector<Triangle> triangles_;
    std::vector<Node> nodes_;
    float radius_ = 1;
};

} // namespace quor::desktop
