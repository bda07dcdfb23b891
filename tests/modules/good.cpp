// A module that does everything right and tells what it heard in GOODHEARD.
#include "tests/modules/recorder.h"

namespace {

class App : public ZrRxZpxApp {
protected:
    Zr::AppRetCode onInitAppMsg(void* id) override {
        recorder_.start();
        recorder_.hear(Zr::kInitAppMsg);
        return ZrRxZpxApp::onInitAppMsg(id);
    }
    Zr::AppRetCode onLoadDwgMsg(void* id) override {
        recorder_.hear(Zr::kLoadDwgMsg);
        return ZrRxZpxApp::onLoadDwgMsg(id);
    }
    Zr::AppRetCode onUnloadDwgMsg(void* id) override {
        recorder_.hear(Zr::kUnloadDwgMsg);
        return ZrRxZpxApp::onUnloadDwgMsg(id);
    }
    Zr::AppRetCode onUnloadAppMsg(void* id) override {
        recorder_.stop();
        return ZrRxZpxApp::onUnloadAppMsg(id);
    }

private:
    MessageRecorder recorder_{L"GOODHEARD"};
};

App app;

} // namespace

extern "C" [[gnu::visibility("default")]] Zr::AppRetCode zrrxEntryPoint(unsigned message, void* id) {
    return app.zrrxEntryPoint(message, id);
}
extern "C" [[gnu::visibility("default")]] unsigned zrrxGetApiVersion() { return Zr::zrrxGetApiVersion(); }
