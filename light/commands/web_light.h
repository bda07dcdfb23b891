// WEBLIGHT: light with the distribution of a photometric web, from a source to a target.
#pragma once

#include "light/commands/web_kinds.h"

class CZrWebLightCmd : public CZrWebKindCmd {
public:
    CZrWebLightCmd() : CZrWebKindCmd(L"Web") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"WEBLIGHTCMD"; }

protected:
    int optionLoop() override;
    bool placeLight() override;
};
