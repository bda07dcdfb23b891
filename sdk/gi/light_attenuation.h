// How the intensity of a light falls off with the distance.
#pragma once

class ZrGiLightAttenuation {
public:
    enum AttenuationType : int { kNone = 0, kInverseLinear = 1, kInverseSquare = 2 };

    // Another number than 0, 1 or 2 is refused and changes nothing.
    [[nodiscard]] AttenuationType attenuationType() const { return type_; }
    bool setAttenuationType(AttenuationType type);

    [[nodiscard]] bool useLimits() const { return useLimits_; }
    void setUseLimits(bool on) { useLimits_ = on; }

    // Distances from the light in drawing units; no order between the two is asked for. Negative numbers and those that
    // are no finite number are refused, both together.
    [[nodiscard]] double startLimit() const { return start_; }
    [[nodiscard]] double endLimit() const { return end_; }
    bool setLimits(double start, double end);

    bool operator==(const ZrGiLightAttenuation&) const = default;

private:
    double start_ = 1;
    double end_ = 10;
    AttenuationType type_ = kNone;
    bool useLimits_ = false;
};
