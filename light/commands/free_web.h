// FREEWEB: light with the distribution of a photometric web, without a target, aimed down the z axis of the UCS.
#pragma once

#include "light/commands/web_kinds.h"

class CZrFreeWebCmd : public CZrWebKindCmd {
public:
    CZrFreeWebCmd() : CZrWebKindCmd(L"freeweB") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"FREEWEBCMD"; }

protected:
    int optionLoop() override;
    bool placeLight() override;
};
