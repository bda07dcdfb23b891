// What the two kinds of web light have in common: all but their placement and their target.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrWebKindCmd : public CZrMultiLight {
public:
    [[nodiscard]] bool finishLight() override;

protected:
    using CZrMultiLight::CZrMultiLight;
    ZrString& defaultNamePrefix(ZrString& out) override;
    int runWebOptions(bool hasTarget);
};
