// A module whose initialisation fails after it has begun: the messages it heard are in FAILINGHEARD until it is
// unloaded.
#include "tests/modules/recorder.h"

namespace {
MessageRecorder recorder(L"FAILINGHEARD");
}

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void*) {
    if (message == Zr::kUnloadAppMsg)
        recorder.stop();
    if (message != Zr::kInitAppMsg)
        return Zr::kRetOK;
    recorder.start();
    return Zr::kRetError;
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
