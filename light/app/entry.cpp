// The two functions by which the host finds the module.
#include "light/app/cmds_app.h"

namespace {
CQUORCmdsApp application;
}

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void* applicationId) {
    return application.zrrxEntryPoint(message, applicationId);
}

extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
