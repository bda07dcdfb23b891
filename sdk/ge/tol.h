// How close two points or two vectors must be to count as equal.
#pragma once

// A pair of tolerances in drawing units: one for points, one for vectors.
class ZrGeTol {
public:
    constexpr ZrGeTol() = default;
    constexpr ZrGeTol(double equalPoint, double equalVector) : equalPoint_(equalPoint), equalVector_(equalVector) {}

    [[nodiscard]] constexpr double equalPoint() const { return equalPoint_; }
    [[nodiscard]] constexpr double equalVector() const { return equalVector_; }
    constexpr void setEqualPoint(double distance) { equalPoint_ = distance; }
    constexpr void setEqualVector(double length) { equalVector_ = length; }

private:
    double equalPoint_ = 1e-10;
    double equalVector_ = 1e-10;
};

// What the geometry classes use where the caller names no tolerance. A program may change it while it starts.
struct ZrGeContext {
    inline static ZrGeTol gTol{};
};
