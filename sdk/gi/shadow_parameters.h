// How a light casts shadows.
#pragma once

#include "sdk/rx/error_status.h"

#include <cstdint>

class ZrGiShadowParameters {
public:
    enum ShadowType : int { kShadowsRayTraced = 0, kShadowMaps = 1, kAreaSampled = 2 };
    enum ExtendedLightShape : int { kLinear = 0, kRect = 1, kDisk = 2, kCylinder = 3, kSphere = 4 };

    [[nodiscard]] bool shadowsOn() const { return on_; }
    void setShadowsOn(bool on) { on_ = on; }

    // 0 sharp, 1 soft mapped, 2 soft sampled; another number is refused and changes nothing.
    [[nodiscard]] ShadowType shadowType() const { return type_; }
    bool setShadowType(ShadowType type);

    // A power of two from 64 to 4096, in texels; another number is refused.
    [[nodiscard]] std::uint16_t shadowMapSize() const { return mapSize_; }
    bool setShadowMapSize(std::uint16_t size);
    // 1 (hard) to 10 (soft); another number is refused.
    [[nodiscard]] std::uint8_t shadowMapSoftness() const { return softness_; }
    bool setShadowMapSoftness(std::uint8_t softness);
    // 0 to 1024; another number is refused.
    [[nodiscard]] std::uint16_t shadowSamples() const { return samples_; }
    bool setShadowSamples(std::uint16_t samples);

    // Whether the shape that gives the light is drawn.
    [[nodiscard]] bool shapeVisibility() const { return shapeVisible_; }
    void setShapeVisibility(bool visible) { shapeVisible_ = visible; }
    [[nodiscard]] ExtendedLightShape extendedLightShape() const { return shape_; }
    bool setExtendedLightShape(ExtendedLightShape shape);
    // Sizes in drawing units; negative numbers and those that are no finite number are refused.
    [[nodiscard]] double extendedLightLength() const { return length_; }
    bool setExtendedLightLength(double length);
    [[nodiscard]] double extendedLightWidth() const { return width_; }
    bool setExtendedLightWidth(double width);
    [[nodiscard]] double extendedLightRadius() const { return radius_; }
    bool setExtendedLightRadius(double radius);

    bool operator==(const ZrGiShadowParameters&) const = default;

private:
    double length_ = 0;
    double width_ = 0;
    double radius_ = 0;
    ShadowType type_ = kShadowsRayTraced;
    ExtendedLightShape shape_ = kRect;
    std::uint16_t mapSize_ = 256;
    std::uint16_t samples_ = 16;
    std::uint8_t softness_ = 1;
    bool on_ = true;
    bool shapeVisible_ = false;
};
