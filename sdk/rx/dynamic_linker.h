// Loading and unloading of modules at run time.
#pragma once

#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

class ZrRxDynamicLinker {
public:
    virtual ~ZrRxDynamicLinker() = default;

    // Loads a module by file name (a bare name is searched in the module folders) and sends it kInitAppMsg.
    // A module that is loaded already is not loaded again. eFileNotFound, eInvalidInput (no module, or one for another
    // version of the interface), eNotApplicable (its initialisation failed: it is sent kUnloadAppMsg at once, to take
    // back what it had begun); lastError() tells why in words.
    virtual Quor::ErrorStatus loadModule(const ZrString& fileName) = 0;
    // Sends kUnloadAppMsg and unloads. eKeyNotFound, eNotAllowed when the module did not unlock itself.
    virtual Quor::ErrorStatus unloadModule(const ZrString& fileName) = 0;
    // What went wrong in the last call that did not answer eOk.
    [[nodiscard]] virtual const ZrString& lastError() const = 0;

    // Called by a module in its initialisation, with the application id it was given.
    virtual bool unlockApplication(void* applicationId) = 0;
    virtual bool registerAppMdiAware(void* applicationId) = 0;
};

[[nodiscard]] ZrRxDynamicLinker* zrrxDynamicLinker();
