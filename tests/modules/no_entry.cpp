// A module that names its version but exports no entry point.
#include "sdk/rx/application.h"

extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
