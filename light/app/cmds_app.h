// The application object of the module: what happens when the host loads it and takes it out again.
#pragma once

#include "sdk/rx/application.h"

class CQUORCmdsApp : public ZrRxZpxApp {
protected:
    // Registers the commands with the host's command library, then the palette and LIGHTLISTSTATE.
    Zr::AppRetCode onInitAppMsg(void* applicationId) override;
    // Takes back what the initialisation did.
    Zr::AppRetCode onUnloadAppMsg(void* applicationId) override;
};
