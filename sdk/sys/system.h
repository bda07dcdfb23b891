// The host's services that modules register with.
#pragma once

#include "sdk/sys/string.h"

#include <functional>

// System variables that modules add.
class ZwSystemVariableService {
public:
    virtual ~ZwSystemVariableService() = default;
    // Registers a read-only whole-number variable whose value the callback gives. False when the name is taken.
    virtual bool registerVariable(const wchar_t* name, std::function<short()> read) = 0;
    // False when it was not registered.
    virtual bool unregisterVariable(const wchar_t* name) = 0;
};

class ZwUiService;

class CZwSystem {
public:
    static CZwSystem& instance();
    [[nodiscard]] ZwSystemVariableService& systemVariables() const;
    // Theme colours, and what palettes need (sdk/ui/ui_service.h).
    [[nodiscard]] ZwUiService& ui() const;
};
