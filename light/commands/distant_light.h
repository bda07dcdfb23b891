// distantlight: parallel light, given by two points or by a vector.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrDistantLightCmd : public CZrMultiLight {
public:
    CZrDistantLightCmd() : CZrMultiLight(L"Distant") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"distantlightCmd"; }

protected:
    int optionLoop() override;
    ZrString& defaultNamePrefix(ZrString& out) override;
    bool placeLight() override;
    // Candela only: a distant light has neither a flux nor a distance at which it could be measured.
    int promptPhotometricIntensity() override;

    // Where the light comes from and goes to, or its vector; RTNORM when the direction was set.
    int promptDistantDirection();

private:
    int askVector();
    int askTarget(const ZrGePoint3d& from);
};
