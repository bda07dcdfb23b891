// Where the points of a scene come to stand in a picture, in single precision.
#pragma once

#include "desktop/render/vector3.h"

namespace quor::desktop {

// A point before it is divided by its `w`. Pixels with whole numbers in their middle; of depths the larger is nearer.
// On the picture, x / w, y / w and depth / w change evenly along lines and across planes.
struct Homogeneous {
    float x, y, depth, w;
};

// The points that are seen at one place of the picture: origin + direction * t, t growing away from the eye.
struct SightLine {
    Vector3 origin;
    Vector3 direction;
};

class ViewTransform {
public:
    ViewTransform(const gs::Camera& camera, const ZrGePoint3d& origin, int width, int height);

    // Nothing nearer than this is shown.
    static constexpr float kNearest = 1e-3F;

    [[nodiscard]] Homogeneous apply(const gs::Coordinates& p) const {
        return {x_[0] * p[0] + x_[1] * p[1] + x_[2] * p[2] + x_[3], y_[0] * p[0] + y_[1] * p[1] + y_[2] * p[2] + y_[3],
                depth_[0] * p[0] + depth_[1] * p[1] + depth_[2] * p[2] + depth_[3],
                w_[0] * p[0] + w_[1] * p[1] + w_[2] * p[2] + w_[3]};
    }
    // Whether nothing of the box can be on the picture, lines and symbols that reach `margin` pixels around their
    // points included.
    [[nodiscard]] bool isOutside(const gs::Coordinates& low, const gs::Coordinates& high, float margin) const;
    // A depth a little nearer: by the share of the distance (of the picture's height where there is no eye).
    [[nodiscard]] float nearer(float depth, float share) const {
        return depth + share * (isPerspective_ ? std::abs(depth) : 1.0F);
    }
    [[nodiscard]] SightLine sightLine(float x, float y) const;
    [[nodiscard]] gs::Coordinates relative(const ZrGePoint3d& world) const;
    // Pixels that one drawing unit takes at a depth.
    [[nodiscard]] float pixelsPerUnit(float depth) const { return isPerspective_ ? scale_ * depth : scale_; }
    [[nodiscard]] bool isPerspective() const { return isPerspective_; }
    [[nodiscard]] Vector3 right() const { return right_; }
    [[nodiscard]] Vector3 up() const { return up_; }
    [[nodiscard]] Vector3 backward() const { return backward_; }
    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    // False when the camera looks nowhere: nothing can be drawn then.
    [[nodiscard]] bool isValid() const { return isValid_; }

private:
    using Row = std::array<float, 4>;
    Row x_{}, y_{}, depth_{}, w_{};
    Vector3 right_, up_, backward_;
    Vector3 eye_;     // the target where there is no eye
    float scale_ = 1; // pixels per unit at the target
    float eyeDistance_ = 1;
    float centerX_ = 0, centerY_ = 0;
    ZrGePoint3d origin_;
    int width_, height_;
    bool isPerspective_;
    bool isValid_ = true;
};

} // namespace quor::desktop
