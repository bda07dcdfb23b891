// LightList and LightListClose: show the palette of the lights in model space and hide it.
#pragma once

#include "sdk/rx/command.h"

class CZrLightListCmd : public RxCommand {
public:
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    [[nodiscard]] bool filtersPoints() const override { return false; }

    [[nodiscard]] const wchar_t* typeName() const override { return L"LightListCmd"; }
    [[nodiscard]] int commandFlags() const override { return 6; }
    // The list is made anew, shown already or not. RTCAN, or RTERROR when there is nothing to show.
    int execute() override;
};

class CZrLightListCloseCmd : public RxCommand {
public:
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    [[nodiscard]] bool filtersPoints() const override { return false; }

    [[nodiscard]] const wchar_t* typeName() const override { return L"LightListCloseCmd"; }
    // RTCAN, always.
    int execute() override;
};
