// Light: asks for the kind of light, keeps the answer as the next default, and runs that kind's command.
#pragma once

#include "sdk/rx/command.h"
#include "sdk/sys/string.h"

class CZrLightCmd : public RxCommand {
public:
    int monitorInputPoint(const ZrEdInputPoint&) override { return 0; }
    [[nodiscard]] bool filtersPoints() const override { return false; }

    [[nodiscard]] const wchar_t* typeName() const override { return L"LightCmd"; }
    int execute() override;

    // Has the variable with the default kind, and a kind in it. RTNORM, or RTERROR when that cannot be.
    static int registerDefaultKind();

private:
    // The keyword of a kind, as it was answered or, for Enter, as it is kept.
    static int askKind(ZrString& kind);
};
