// FREESPOT: a cone of light without a target, aimed down the z axis of the UCS.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrFreeSpotCmd : public CZrMultiLight {
public:
    CZrFreeSpotCmd() : CZrMultiLight(L"Freespot") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"FREESPOTCMD"; }

protected:
    int optionLoop() override;
    ZrString& defaultNamePrefix(ZrString& out) override;
    bool placeLight() override;

    // True when the angle was set; false when the question was left, or the light refused the angle. The questions are
    // the free spot light's own: other than a spot light's they check their numbers themselves and are asked once.
    bool promptHotspot();
    bool promptFalloff();
};
