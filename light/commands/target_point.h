// TargetPoint: a point light with a target.
#pragma once

#include "light/lightcmd/multi_light.h"

class CZrTargetPointCmd : public CZrMultiLight {
public:
    CZrTargetPointCmd() : CZrMultiLight(L"Targetpoint") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"TargetPointCmd"; }

protected:
    int optionLoop() override;
    ZrString& defaultNamePrefix(ZrString& out) override;
    bool placeLight() override;
};
