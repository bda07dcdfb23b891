// A module that throws where it should answer, after it has begun: THROWINGHEARD stands until it is unloaded.
#include "tests/modules/recorder.h"

#include <stdexcept>

namespace {
MessageRecorder recorder(L"THROWINGHEARD");
}

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void*) {
    if (message == Zr::kInitAppMsg)
        recorder.start();
    if (message == Zr::kUnloadAppMsg)
        recorder.stop();
    throw std::runtime_error("no light");
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
