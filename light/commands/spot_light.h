// SPOTLIGHT: a cone of light from a source to a target.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrSpotLightCmd : public CZrMultiLight {
public:
    CZrSpotLightCmd() : CZrMultiLight(L"Spot") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"SPOTLIGHTCMD"; }

protected:
    int optionLoop() override;
    ZrString& defaultNamePrefix(ZrString& out) override;
    bool placeLight() override;

    // False where the question is to be asked again: an angle out of range, or one that the light refuses.
    bool promptHotspot();
    bool promptFalloff();
};
