// A module that does not unlock itself, so it stays until the host ends. What GOODHEARD said when it was unloaded, or 0
// when good.cpp was gone by then, is in the per-user value lockedSawGood.
#include "sdk/rx/application.h"
#include "sdk/sys/ads.h"

namespace {

class App : public ZrRxDbxApp {
public:
    App() {
        unlocked_ = false;
        mdiAware_ = false;
    }

protected:
    Zr::AppRetCode onUnloadAppMsg(void* id) override {
        short heard = 0;
        zwutads::getVar(L"GOODHEARD", heard);
        zwutads::SetValueFromReg(L"lockedSawGood", heard);
        return ZrRxDbxApp::onUnloadAppMsg(id);
    }
};

App app;

} // namespace

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void* id) {
    return app.zrrxEntryPoint(message, id);
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
