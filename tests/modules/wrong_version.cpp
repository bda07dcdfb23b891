// A module for another version of the interface; its entry point must never be called.
#include "sdk/rx/application.h"

#include <cstdlib>

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned, void*) { std::abort(); }
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion() + 41; }
