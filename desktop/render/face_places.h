// Places on faces, as they are seen at the pixels of a picture.
#pragma once

#include "desktop/render/view_transform.h"

namespace quor::desktop {

struct FacePlace {
    Vector3 position;
    Vector3 normal;   // on the side that is seen
    float facing = 0; // 0 from the edge, 1 straight on
};

class FacePlaces {
public:
    FacePlaces(const gs::SceneData& scene, const ViewTransform& view) : scene_(scene), view_(view) {}
    // Of a triangle by its number plus one. Neighbours mostly show the same one, whose plane is remembered.
    [[nodiscard]] FacePlace at(std::uint32_t number, int x, int y);

private:
    const gs::SceneData& scene_;
    const ViewTransform& view_;
    std::uint32_t number_ = 0;
    Vector3 corner_, normal_;
};

// The colour of a face as the share of light that it sends back; never all of it.
[[nodiscard]] Vector3 linearColor(std::uint32_t color);

} // namespace quor::desktop
