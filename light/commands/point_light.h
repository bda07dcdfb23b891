// POINTLIGHT: one point light, without a target.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrPointLightCmd : public CZrMultiLight {
public:
    CZrPointLightCmd() : CZrMultiLight(L"Point") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"POINTLIGHTCMD"; }

protected:
    int optionLoop() override;
    ZrString& defaultNamePrefix(ZrString& out) override;
    bool placeLight() override;
};
