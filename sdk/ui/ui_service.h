// What the host offers to modules that show windows.
#pragma once

#include "sdk/ui/resource_templates.h"
#include "sdk/ui/theme.h"

class CControlBar;

// Reached by CZwSystem::instance().ui().
class ZwUiService {
public:
    virtual ~ZwUiService() = default;
    [[nodiscard]] virtual const ZwTheme& theme() const = 0;
    // A palette set is about to go: nothing of the host uses it any more, and its window is destroyed. Harmless for one
    // that is gone already: only the pointer is looked at. `reserved` is 0.
    virtual void dropPaletteSet(CControlBar* paletteSet, int reserved) = 0;
};

// Where modules find the host's own resources.
class ZrRxUiEvent {
public:
    virtual ~ZrRxUiEvent() = default;
    // 1: the resources of the user interface (icons). Null for any other number.
    [[nodiscard]] virtual ZwResourceInstance GetResourceModule(int kind) const = 0;
};

// Null while no host is running.
[[nodiscard]] ZrRxUiEvent* zrrxUiEvent();
