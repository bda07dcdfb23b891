// A module that throws where it should answer.
#include "sdk/rx/application.h"

#include <stdexcept>

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned, void*) {
    throw std::runtime_error("no light");
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return zrrxHostApiVersion(); }
