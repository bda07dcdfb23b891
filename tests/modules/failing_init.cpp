// A module whose initialisation fails.
#include "sdk/rx/application.h"

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void*) {
    return message == Zr::kInitAppMsg ? Zr::kRetError : Zr::kRetOK;
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return zrrxHostApiVersion(); }
