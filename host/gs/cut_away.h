// Opens a scene towards the eye as a doll's house is: the faces in those sides of its box through which the eye looks
// in are left out, so that rooms can be looked into from outside.
#pragma once

#include "host/gs/scene.h"

namespace quor::gs {

class CutAway {
public:
    // Leaves nothing out.
    CutAway() = default;
    CutAway(const SceneData& scene, const Camera& camera);

    [[nodiscard]] bool hides(const SceneTriangle& triangle) const;

private:
    // Beyond these, faces are left out.
    Coordinates low_{-kNowhere, -kNowhere, -kNowhere};
    Coordinates high_{kNowhere, kNowhere, kNowhere};
    static constexpr float kNowhere = 1e30F;
};

} // namespace quor::gs
