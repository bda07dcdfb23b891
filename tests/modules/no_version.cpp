// A module that does not say for which version of the interface it was made.
#include "sdk/rx/application.h"

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned, void*) { return Zr::kRetOK; }
