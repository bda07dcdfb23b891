// A module that does not unlock itself, so it stays until the host ends.
#include "sdk/rx/application.h"

namespace {

class App : public ZrRxDbxApp {
public:
    App() {
        unlocked_ = false;
        mdiAware_ = false;
    }
};

App app;

} // namespace

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void* id) {
    return app.zrrxEntryPoint(message, id);
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
