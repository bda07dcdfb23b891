// From where a drawing is looked at, and what that makes of its points. Values and pure functions; no pixels are kept.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/ge/vector3d.h"

#include <optional>

namespace quor::gs {

// A box along the axes of the world; empty until something is put in.
struct Box {
    ZrGePoint3d low{1, 1, 1};
    ZrGePoint3d high{-1, -1, -1};
    [[nodiscard]] bool isEmpty() const { return low.x > high.x || low.y > high.y || low.z > high.z; }
    void add(const ZrGePoint3d& point);
    void add(const Box& box);
    [[nodiscard]] ZrGePoint3d center() const;
    [[nodiscard]] double diagonal() const;
};

// Width and height of a picture in pixels.
struct PictureSize {
    int width = 1;
    int height = 1;
    bool operator==(const PictureSize&) const = default;
};

// A place on a picture: pixels from the top left, and how far away it is (larger is farther).
struct ScreenPoint {
    double x = 0;
    double y = 0;
    double depth = 0;
};

// What stands behind a place on a picture.
struct Ray {
    ZrGePoint3d origin;
    ZrGeVector3d direction; // of length 1, away from the eye
};

enum class Projection { Parallel, Perspective };

// Looks at `target` along -`backward`, so that a plane through the target shows `height` drawing units from top to
// bottom.
struct Camera {
    ZrGePoint3d target;
    ZrGeVector3d backward = ZrGeVector3d::kZAxis; // from the target to the eye, of length 1
    ZrGeVector3d up = ZrGeVector3d::kYAxis;       // of length 1, at right angles to `backward`
    double height = 100;
    Projection projection = Projection::Parallel;
    bool operator==(const Camera&) const = default;

    // The full angle from top to bottom of a perspective picture.
    static constexpr double kFieldOfView = 0.7;
    [[nodiscard]] double eyeDistance() const;
    [[nodiscard]] ZrGePoint3d eye() const { return target + backward * eyeDistance(); }
    [[nodiscard]] ZrGeVector3d right() const { return up.crossProduct(backward); }
};

// Each answers the camera after the movement. Directions that are no directions leave it as it is.
// Around a point, in radians: the eye turns by `across` about the world's z axis, counterclockwise as seen from above,
// and rises by `over` about the horizontal of the picture. An eye that stands upright stops when it looks straight
// down or up.
[[nodiscard]] Camera orbited(const Camera& camera, const ZrGePoint3d& center, double across, double over);
// By pixels of the picture; what is under the cursor at the target's distance stays under it.
[[nodiscard]] Camera panned(const Camera& camera, PictureSize size, double dx, double dy);
// `factor` above 1 brings nearer; what is at that place of the picture stays there.
[[nodiscard]] Camera zoomedAt(const Camera& camera, PictureSize size, double x, double y, double factor);
// The whole box, in the direction in which the camera looks, with a margin around it. An empty box changes nothing.
[[nodiscard]] Camera fitted(const Camera& camera, PictureSize size, const Box& box);
// Looking along -`backward` with the world's z axis (or y, from above and below) upwards.
[[nodiscard]] Camera lookingAlong(const Camera& camera, const ZrGeVector3d& backward);

// A camera with the size of the picture: points to pixels and back.
class Projector {
public:
    Projector(const Camera& camera, PictureSize size);
    // Nothing for a point at or behind the eye.
    [[nodiscard]] std::optional<ScreenPoint> toScreen(const ZrGePoint3d& world) const;
    [[nodiscard]] Ray rayAt(double x, double y) const;
    // Where the ray meets a plane; nothing when they are parallel or the plane is behind the eye.
    [[nodiscard]] std::optional<ZrGePoint3d> onPlane(double x, double y, const ZrGePoint3d& origin,
                                                     const ZrGeVector3d& normal) const;
    // Drawing units that one pixel shows there.
    [[nodiscard]] double unitsPerPixel(const ZrGePoint3d& at) const;
    [[nodiscard]] const Camera& camera() const { return camera_; }
    [[nodiscard]] PictureSize size() const { return size_; }

private:
    Camera camera_;
    PictureSize size_;
    ZrGeVector3d right_;
    ZrGePoint3d eye_;
    double pixelsPerUnit_; // at the target
};

} // namespace quor::gs
