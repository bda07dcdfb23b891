// The lights that a command is about: those that are selected, or all of the drawing.
#pragma once

#include "host/props/light_facts.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quor {
class Session;
}

namespace quor::commands {

// The lights of model space or of a layout, in drawing order.
struct LightsOfSpace {
    ZrString layout; // empty: model space
    std::vector<ZrDbObjectId> ids;
};

struct LightSelection {
    std::vector<LightsOfSpace> spaces; // model space first
    std::size_t count = 0;             // of the lights
    std::size_t inWorkset = 0;         // of the lights, those of the block that is edited in place
    std::size_t others = 0;            // selected objects that are no lights
    bool all = false;                  // nothing was selected
};

// Takes the pick-first selection or asks for one; Enter without any: all lights. RTNORM, RTCAN or RTERROR.
[[nodiscard]] int selectLights(Session& session, LightSelection& selection);

// Reads them one after the other: a drawing may hold more lights than their facts have room for.
class LightReader {
public:
    explicit LightReader(const LightSelection& selection) : selection_(selection), units_(photometricUnits()) {}

    // Nothing behind the last one. A light that cannot be read is left out after a message.
    [[nodiscard]] std::optional<LightFacts> next();

private:
    const LightSelection& selection_;
    PhotometricUnits units_;
    std::size_t space_ = 0;
    std::size_t light_ = 0; // in that space
};

} // namespace quor::commands
